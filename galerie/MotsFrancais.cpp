// galerie/MotsFrancais.cpp
#include "MotsFrancais.h"

#include "LectureTexte.h"
#include "TexteReplie.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Lists differ in what they write for an apostrophe and for two letters in one.
QString Simplifie(QString texte)
{
    constexpr char16_t kFinLatin1 = 0x100;
    // Most words have nothing of these.
    if (std::none_of(texte.cbegin(), texte.cend(), [](QChar caractere) {
            return caractere.unicode() >= kFinLatin1 || caractere == u'æ' || caractere == u'Æ';
        }))
        return texte;
    return texte.replace(u'’', u'\'')
        .replace(u'œ', u"oe"_s, Qt::CaseInsensitive)
        .replace(u'æ', u"ae"_s, Qt::CaseInsensitive);
}

} // namespace

MotsFrancais::MotsFrancais()
    : MotsFrancais(DonneFichierParDefaut())
{
}

MotsFrancais::MotsFrancais(QString fichier)
    : monFichier(std::move(fichier))
{
}

QString MotsFrancais::DonneFichierParDefaut()
{
    return u"/usr/share/dict/french"_s;
}

void MotsFrancais::MetsFichier(QString const & fichier)
{
    if (fichier != monFichier)
        *this = MotsFrancais(fichier);
}

bool MotsFrancais::Charge()
{
    if (!monChargement) {
        monChargement = true;
        mesMots = LectureTexte(monFichier).DonneTexte();
        Decoupe();
        auto const precede = [this](Entree const & gauche, Entree const & droite) {
            return DonneCle(gauche) < DonneCle(droite);
        };
        // A list in the order of a French dictionary is sorted so already.
        if (!std::is_sorted(mesEntrees.cbegin(), mesEntrees.cend(), precede))
            std::stable_sort(mesEntrees.begin(), mesEntrees.end(), precede);
    }
    return !mesEntrees.empty();
}

QStringList MotsFrancais::Propose(QString const & debut, int combien)
{
    auto const [premier, dernier] = Trouve(debut);
    QStringList mots;
    for (auto entree = premier; entree != dernier && mots.size() < combien; ++entree)
        mots.append(DonneMot(*entree).toString());
    return mots;
}

int MotsFrancais::Compte(QString const & debut)
{
    auto const [premier, dernier] = Trouve(debut);
    return static_cast<int>(dernier - premier);
}

bool MotsFrancais::Contient(QString const & mot)
{
    QString const simple = Simplifie(mot);
    QString cle;
    for (QChar const caractere : simple)
        AjouteReplie(cle, caractere);
    Charge();
    auto entree = std::lower_bound(
        mesEntrees.cbegin(), mesEntrees.cend(), cle,
        [this](Entree const & autre, QStringView texte) { return DonneCle(autre) < texte; });
    for (; entree != mesEntrees.cend() && DonneCle(*entree) == cle; ++entree)
        if (Simplifie(DonneMot(*entree).toString()).compare(simple, Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

void MotsFrancais::Decoupe()
{
    mesCles.reserve(mesMots.size());
    qsizetype debut = 0;
    qsizetype cle = 0;
    mesEntrees.reserve(static_cast<std::size_t>(mesMots.count(u'\n')) + 1);
    QChar const * const caracteres = mesMots.constData();
    for (qsizetype i = 0, taille = mesMots.size(); i < taille; ++i) {
        QChar const caractere = caracteres[i];
        if (caractere != u'\n') {
            AjouteReplie(mesCles, caractere);
            continue;
        }
        AjouteEntree(debut, i, cle);
        debut = i + 1;
        cle = mesCles.size();
    }
    AjouteEntree(debut, mesMots.size(), cle);
}

// What has no letter is no word.
void MotsFrancais::AjouteEntree(qsizetype debut, qsizetype fin, qsizetype cle)
{
    if (mesCles.size() > cle)
        mesEntrees.push_back(
            {debut, cle, static_cast<int>(fin - debut), static_cast<int>(mesCles.size() - cle)});
}

QStringView MotsFrancais::DonneMot(Entree const & entree) const
{
    return QStringView(mesMots).mid(entree.mot, entree.longueurMot).trimmed();
}

QStringView MotsFrancais::DonneCle(Entree const & entree) const
{
    return QStringView(mesCles).mid(entree.cle, entree.longueurCle);
}

std::pair<MotsFrancais::Iterateur, MotsFrancais::Iterateur>
MotsFrancais::Trouve(QString const & debut)
{
    QString cle;
    for (QChar const caractere : debut)
        AjouteReplie(cle, caractere);
    Charge();
    if (cle.isEmpty())
        return {mesEntrees.cend(), mesEntrees.cend()};
    auto const premier = std::lower_bound(
        mesEntrees.cbegin(), mesEntrees.cend(), cle,
        [this](Entree const & entree, QStringView texte) { return DonneCle(entree) < texte; });
    auto const dernier = std::upper_bound(premier, mesEntrees.cend(), cle,
                                          [this](QStringView texte, Entree const & entree) {
                                              return texte < DonneCle(entree).left(texte.size());
                                          });
    return {premier, dernier};
}
