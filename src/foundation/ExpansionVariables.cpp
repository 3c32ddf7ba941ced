// foundation/ExpansionVariables.cpp
#include "foundation/ExpansionVariables_p.h"

#include <QSet>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// A variable at the front of a text.
struct Utilisation
{
    QStringView nom;
    qsizetype longueur; // with the prefix
};

// `texte` begins with the prefix.
Utilisation LisUtilisation(QStringView texte, QString const & prefixe)
{
    auto const fin =
        std::find_if(texte.begin() + prefixe.size(), texte.end(), RoutinesVariables::EstFinDeNom);
    auto const longueur = static_cast<qsizetype>(fin - texte.begin());
    return {texte.first(longueur).sliced(prefixe.size()), longueur};
}

RoutinesVariables::Variables::const_iterator Cherche(RoutinesVariables::Variables const & variables,
                                                     QStringView nom)
{
    return variables.find(QString::fromRawData(nom.data(), nom.size()));
}

// What is still to be read of a text. What has been read leaves room at the front of the buffer,
// and there a value goes, so that putting one in does not move the whole rest of the text.
class Reste
{
public:
    explicit Reste(QString const & texte)
        : monTampon(texte)
    {
    }

    QStringView Prete() const { return QStringView(monTampon).sliced(monDebut); }

    void Avance(qsizetype nombre) { monDebut += nombre; }

    void Insere(QString const & valeur)
    {
        if (valeur.size() > monDebut)
            Agrandis(valeur.size());
        monDebut -= valeur.size();
        std::copy(valeur.begin(), valeur.end(), monTampon.begin() + monDebut);
    }

private:
    void Agrandis(qsizetype minimum)
    {
        // At least twice as long, so that all the copies together are linear too.
        qsizetype const ajout = std::max(minimum, monTampon.size());
        QString tampon(monTampon.size() + ajout, Qt::Uninitialized);
        QStringView const reste = Prete();
        std::copy(reste.begin(), reste.end(), tampon.begin() + monDebut + ajout);
        monTampon = std::move(tampon);
        monDebut += ajout;
    }

    QString monTampon;
    qsizetype monDebut = 0;
};

} // namespace

bool RoutinesVariables::EstFinDeNom(QChar caractere)
{
    switch (caractere.unicode()) {
    case u' ':
    case u'\t':
    case u'\n':
    case u'\v':
    case u'\f':
    case u'\r':
    case u';':
    case u',':
    case u')':
    case u'[':
    case u']':
    case u'{':
    case u'}':
        return true;
    default:
        return false;
    }
}

QString RoutinesVariables::Applique(QString const & texte, QString const & prefixe,
                                    Variables const & variables)
{
    if (!texte.contains(prefixe))
        return texte;

    QString resultat;
    resultat.reserve(texte.size());
    Reste reste(texte);
    for (;;) {
        qsizetype const position = reste.Prete().indexOf(prefixe);
        if (position < 0)
            return resultat.append(reste.Prete());
        resultat.append(reste.Prete().first(position));
        reste.Avance(position);

        Utilisation const utilisation = LisUtilisation(reste.Prete(), prefixe);
        auto const variable = Cherche(variables, utilisation.nom);
        if (variable != variables.end()) {
            reste.Avance(utilisation.longueur);
            reste.Insere(variable->second);
        }

        if (reste.Prete().isEmpty())
            return resultat;
        // Deliberate: a value that begins with the prefix is read again from the same place, which
        // chains variables. A name without a value is read again too, and the call does not return.
        if (prefixe.size() == 1 && reste.Prete().front() == prefixe.front())
            continue;
        resultat.append(reste.Prete().front());
        reste.Avance(1);
    }
}

QStringList RoutinesVariables::DonneInconnues(QString const & texte, QString const & prefixe,
                                              Variables const & variables)
{
    QStringList inconnues;
    if (prefixe.isEmpty())
        return inconnues;

    QSet<QStringView> dejaVus; // each value is read once, so that circles end
    // The text that a value stands in goes on after the value. A name never runs from the one into
    // the other, since what follows a value is what ended a name.
    std::vector<QStringView> aLire{texte};
    while (!aLire.empty()) {
        QStringView const vue = aLire.back();
        aLire.pop_back();
        qsizetype const position = vue.indexOf(prefixe);
        if (position < 0)
            continue;
        Utilisation const utilisation = LisUtilisation(vue.sliced(position), prefixe);
        aLire.push_back(vue.sliced(position + utilisation.longueur));
        if (dejaVus.contains(utilisation.nom))
            continue;
        dejaVus.insert(utilisation.nom);
        auto const variable = Cherche(variables, utilisation.nom);
        if (variable == variables.end())
            inconnues.append(utilisation.nom.toString());
        else
            aLire.push_back(variable->second);
    }
    return inconnues;
}
