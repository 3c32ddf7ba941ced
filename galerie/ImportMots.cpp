// galerie/ImportMots.cpp
#include "ImportMots.h"

#include "MotsFrancais.h"

#include <QSet>
#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLignesExaminees = 50; // to tell the separator

QChar DonneSigne(ImportMots::eSeparateur separateur)
{
    switch (separateur) {
    case ImportMots::kVirgule:
        return u',';
    case ImportMots::kPointVirgule:
        return u';';
    case ImportMots::kTabulation:
        return u'\t';
    case ImportMots::kLigne:
        break;
    }
    return u'\n'; // in no line
}

// Calls `fonction` with each line that is not blank until it answers false.
template <typename Fonction>
void ParcoursLignes(QStringView texte, Fonction fonction)
{
    for (qsizetype debut = 0; debut < texte.size();) {
        qsizetype const trouvay = texte.indexOf(u'\n', debut);
        qsizetype const fin = trouvay < 0 ? texte.size() : trouvay;
        QStringView const ligne = texte.mid(debut, fin - debut);
        if (!ligne.trimmed().isEmpty() && !fonction(ligne))
            return;
        debut = fin + 1;
    }
}

// The text of a cell that begins with a quotation mark, and in `debut` the place behind it.
QString LisCelluleCitee(QStringView ligne, QChar signe, qsizetype & debut)
{
    QString cellule;
    bool dedans = true;
    for (++debut; debut < ligne.size() && (dedans || ligne[debut] != signe); ++debut) {
        if (ligne[debut] != u'"')
            cellule += ligne[debut];
        else if (dedans && debut + 1 < ligne.size() && ligne[debut + 1] == u'"')
            cellule += ligne[++debut];
        else
            dedans = !dedans;
    }
    return cellule.trimmed();
}

// Calls `fonction` with the number of each cell, from 1, and its text without blanks around it.
template <typename Fonction>
void ParcoursCellules(QStringView ligne, QChar signe, Fonction fonction)
{
    int colonne = 1;
    for (qsizetype debut = 0; debut <= ligne.size(); ++debut, ++colonne) {
        while (debut < ligne.size() && ligne[debut] != signe && ligne[debut].isSpace())
            ++debut;
        if (signe != u'\n' && debut < ligne.size() && ligne[debut] == u'"') {
            fonction(colonne, LisCelluleCitee(ligne, signe, debut));
            continue;
        }
        qsizetype const trouvay = ligne.indexOf(signe, debut);
        qsizetype const fin = trouvay < 0 ? ligne.size() : trouvay;
        fonction(colonne, ligne.mid(debut, fin - debut).trimmed());
        debut = fin;
    }
}

QString AppliqueCasse(QString const & mot, ImportMots::eCasse casse)
{
    switch (casse) {
    case ImportMots::kMinuscules:
        return mot.toLower();
    case ImportMots::kMajuscules:
        return mot.toUpper();
    case ImportMots::kCasseGardee:
        break;
    }
    return mot;
}

// But for repetitions, for which the other words are needed.
std::optional<ImportMots::eMotif> DonneMotif(QString const & mot, ImportMots::Tri const & tri)
{
    if (mot.size() > ImportMots::kLongueurMax)
        return ImportMots::kLong;
    if (mot.size() < tri.longueurMin)
        return ImportMots::kCourt;
    if (tri.sansChiffres &&
        std::any_of(mot.begin(), mot.end(), [](QChar signe) { return signe.isDigit(); }))
        return ImportMots::kChiffre;
    return {};
}

} // namespace

namespace ImportMots {

eCodage DevineCodage(QByteArray const & octets)
{
    return octets.isValidUtf8() ? kUtf8 : kLatin1;
}

std::optional<QString> Decode(QByteArray const & octets, eCodage codage)
{
    if (octets.contains('\0'))
        return {};
    // Stateless: also a character that is cut off at the end is an error.
    QStringDecoder decodeur(codage == kUtf8 ? QStringDecoder::Utf8 : QStringDecoder::Latin1,
                            QStringDecoder::Flag::Stateless);
    QString texte = decodeur(octets);
    if (decodeur.hasError())
        return {};
    if (texte.contains(u'\r'))
        texte.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    return texte.normalized(QString::NormalizationForm_C);
}

eSeparateur DevineSeparateur(QString const & texte)
{
    constexpr eSeparateur kCandidats[] = {kTabulation, kPointVirgule, kVirgule};
    std::array<int, std::size(kCandidats)> lignesAvec{};
    int lignes = 0;
    ParcoursLignes(texte, [&](QStringView ligne) {
        for (std::size_t i = 0; i < lignesAvec.size(); ++i)
            lignesAvec[i] += ligne.contains(DonneSigne(kCandidats[i])) ? 1 : 0;
        return ++lignes < kLignesExaminees;
    });
    auto const meilleur = std::max_element(lignesAvec.begin(), lignesAvec.end());
    return *meilleur * 2 > lignes ? kCandidats[meilleur - lignesAvec.begin()] : kLigne;
}

Format DevineFormat(QByteArray const & octets)
{
    Format format;
    format.codage = DevineCodage(octets);
    QString const texte = Decode(octets, format.codage).value_or(QString());
    format.separateur = DevineSeparateur(texte);
    // A single line is a list across; several are a table, which begins with what it is about.
    if (format.separateur != kLigne && DonneRangees(texte, kLigne, 2).size() > 1)
        format.colonne = 1;
    return format;
}

QList<QStringList> DonneRangees(QString const & texte, eSeparateur separateur, int combien)
{
    QList<QStringList> rangees;
    QChar const signe = DonneSigne(separateur);
    if (combien <= 0)
        return rangees;
    ParcoursLignes(texte, [&](QStringView ligne) {
        QStringList rangee;
        ParcoursCellules(ligne, signe,
                         [&](int, QStringView cellule) { rangee += cellule.toString(); });
        rangees.append(rangee);
        return rangees.size() < combien;
    });
    return rangees;
}

QStringList DonneMots(QString const & texte, Format const & format)
{
    QStringList mots;
    QChar const signe = DonneSigne(format.separateur);
    bool enTete = format.avecEnTete;
    ParcoursLignes(texte, [&](QStringView ligne) {
        if (std::exchange(enTete, false))
            return true;
        ParcoursCellules(ligne, signe, [&](int colonne, QStringView cellule) {
            if (!cellule.isEmpty() && format.PrendsColonne(colonne))
                mots.append(cellule.toString());
        });
        return true;
    });
    return mots;
}

ResultatTri Trie(QStringList const & mots, Tri const & tri)
{
    ResultatTri resultat;
    resultat.gardes.reserve(mots.size());
    QSet<QStringView> connus; // of the words that are kept: three times as fast as with strings
    if (tri.sansDoublons)
        connus.reserve(mots.size());
    for (QString const & brut : mots) {
        QString const mot = AppliqueCasse(brut, tri.casse);
        std::optional<eMotif> motif = DonneMotif(mot, tri);
        if (!motif && tri.sansDoublons) {
            qsizetype const avant = connus.size();
            connus.insert(mot);
            if (connus.size() == avant)
                motif = kDoublon;
        }
        if (!motif) {
            resultat.gardes.append(mot);
            continue;
        }
        ++resultat.nombres[*motif];
        if (resultat.ecartes.size() < kEcartesMontres)
            resultat.ecartes.append({mot.left(kLongueurMax), *motif});
    }
    return resultat;
}

Verification Verifie(QStringList const & mots, MotsFrancais & liste)
{
    Verification verification;
    verification.faite = liste.Charge();
    if (!verification.faite)
        return verification;
    for (QString const & mot : mots)
        (liste.Contient(mot) ? verification.connus : verification.inconnus).append(mot);
    return verification;
}

} // namespace ImportMots
