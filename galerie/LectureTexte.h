// galerie/LectureTexte.h
#pragma once

#include <QString>

/// A text file, read as a whole when the object is made: UTF-8, as it is or compressed by gzip.
class LectureTexte
{
public:
    enum eResultat
    {
        kLu,
        kAbsent,
        kIllisible,  ///< no right to read it, or no file but a directory, a pipe or a device
        kEndommagay, ///< compressed, but cut off or changed since
        kTropLong,
        kPasUtf8 ///< in another encoding, or no text at all
    };

    static constexpr qsizetype kLimite = 8 * 1024 * 1024; // bytes, of the text when decompressed

    explicit LectureTexte(QString fichier, qsizetype limite = kLimite);

    /// Debian's reference in French, of the package `debian-reference-fr`.
    static QString DonneFichierParDefaut();

    eResultat DonneResultat() const { return monResultat; }
    /// Without a byte order mark, every line ended by a line feed alone; empty unless it was read.
    QString const & DonneTexte() const { return monTexte; }
    /// What went wrong, in the language of the application; empty when nothing did.
    QString DonneMessage() const;

private:
    eResultat Lis();

    QString monFichier;
    qsizetype maLimite;
    QString monTexte;
    eResultat monResultat;
};
