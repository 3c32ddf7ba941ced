// galerie/ImportMotsLecture.h
#pragma once

#include <QByteArray>
#include <QFile>
#include <QObject>

/// A file, read piece by piece from the event loop, so that a slow disk does not stop the windows.
class ImportMotsLecture : public QObject
{
    Q_OBJECT

public:
    enum eResultat
    {
        kEnCours,
        kLu,
        kAbsent,
        kIllisible, ///< no right to read it, or no file but a directory, a pipe or a device
        kTropLong,
        kBinaire ///< no text: it holds a null byte
    };

    static constexpr qsizetype kLimite = 8 * 1024 * 1024; // bytes

    /// Begins at once; nothing is told before the event loop runs.
    explicit ImportMotsLecture(QString const & fichier, QObject * parent = nullptr,
                               qsizetype limite = kLimite);

    eResultat DonneResultat() const { return monResultat; }
    QString DonneFichier() const { return monFichier.fileName(); }
    /// Empty unless it was read.
    QByteArray DonneOctets() const { return mesOctets; }
    /// What went wrong, in the language of the application; empty when nothing did.
    QString DonneMessage() const;

Q_SIGNALS:
    /// Once.
    void SignalTermine();

private:
    void Ouvre();
    void LisMorceau();
    void Termine(eResultat resultat);

    QFile monFichier;
    qsizetype maLimite;
    QByteArray mesOctets;
    eResultat monResultat = kEnCours;
};
