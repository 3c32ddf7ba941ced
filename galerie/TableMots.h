// galerie/TableMots.h
#pragma once

#include <QString>
#include <QStringView>

#include <string>
#include <string_view>
#include <vector>

/// A list of words with all that one may ask of each, worked out once in a single pass.
///
/// It never changes, so that any thread may build it and any other read it.
class TableMots
{
public:
    /// Bits.
    enum eAccents : quint8
    {
        kSansAccent = 0,
        kAigu = 1,
        kGrave = 2,
        kCirconflexe = 4,
        kTrema = 8,
        kCedille = 16,
        kAutreAccent = 32,
        kFinAccents = 64 ///< above every combination
    };

    struct Attributs
    {
        quint8 lettres;  ///< how many, without hyphens and apostrophes; 255 for more
        quint8 initiale; ///< 1 for a or A, whatever its accent, to 26 for z; 0 for another
        quint8 accents;  ///< of `eAccents`
    };

    /// `texte` has a word in each line; blanks around it, and lines without letter and digit, do
    /// not count.
    explicit TableMots(QString const & texte = {});

    /// What a word is compared as: UTF-8, without case, accents and all that is no letter.
    static std::string DonneCle(QStringView texte);
    static quint8 DonneAccents(QChar caractere);

    int DonneNombre() const { return static_cast<int>(mesAttributs.size()); }
    QStringView DonneMot(int indice) const;
    std::string_view DonneCle(int indice) const;
    Attributs const & DonneAttributs(int indice) const { return mesAttributs[Rang(indice)]; }

private:
    static std::size_t Rang(int indice) { return static_cast<std::size_t>(indice); }
    void AjouteMot(QStringView mot, QString & cle);

    // One behind the other. An end is the next beginning: there is one more of these than words.
    QString mesMots;
    std::string mesCles;
    std::vector<quint32> mesDebuts{0};
    std::vector<quint32> mesDebutsDeCles{0};
    std::vector<Attributs> mesAttributs;
};
