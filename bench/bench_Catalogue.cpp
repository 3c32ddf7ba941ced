// bench/bench_Catalogue.cpp
//
// A look-up of a message in a catalogue that is loaded, beside a QHash of the texts and beside
// QCoreApplication::translate with a translator that answers from such a QHash.
#include "Comparaison.h"

#include "noyau/ContexteLocalisation.h"
#include "noyau/FabriqueCatalogue.h"
#include "noyau/LocalisateurContextuel.h"

#include <QCoreApplication>
#include <QHash>
#include <QTemporaryDir>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

constexpr double kDureeMax = 1000.0; // ns for a look-up
constexpr int kMessages = 500;

// Answers from a table: the cost of QCoreApplication::translate without that of a file format.
class TraducteurEnMemoire : public QTranslator
{
public:
    explicit TraducteurEnMemoire(QHash<QByteArray, QString> const & textes)
        : mesTextes(textes)
    {
    }

    bool isEmpty() const override { return false; }
    QString translate(char const *, char const * source, char const *, int) const override
    {
        return mesTextes.value(QByteArray(source));
    }

private:
    QHash<QByteArray, QString> const & mesTextes;
};

MessagesDeCatalogue Messages()
{
    MessagesDeCatalogue messages{
        {"", EnteteDeCatalogue(kRegleAnglaise)},
        {"Enregistrer sous", "Save As"},
        {"menu\004Enregistrer sous", "Save a Copy"},
        {QByteArray("%d fichier\0%d fichiers", 22), QByteArray("%d file\0%d files", 16)}};
    for (int i = 0; i < kMessages; ++i)
        messages.insert("Message " + QByteArray::number(i),
                        "Message number " + QByteArray::number(i));
    return messages;
}

template <typename Operation>
Comparaison::Boucle Boucle(Operation operation)
{
    return [operation](int repetitions) {
        for (int i = 0; i < repetitions; ++i)
            operation();
    };
}

void Mesure(Comparaison & comparaison, ContexteLocalisation const & contexte)
{
    constexpr VueTexte kDomaine = {"Bench", 5};
    constexpr ChaineLocalisable kSimple = {{"Enregistrer sous", 16}, {}, kDomaine};
    constexpr ChaineLocalisable kMenu = {{"Enregistrer sous", 16}, {"menu", 4}, kDomaine};
    constexpr ChaineLocalisable kAbsent = {{"Absent du catalogue", 19}, {}, kDomaine};
    constexpr ChaineLocalisablePluriel kPluriel = {
        {"%d fichier", 10}, {"%d fichiers", 11}, {}, kDomaine};
    DLocale const locale(kLangueAnglais);
    QHash<QByteArray, QString> const textes{{"Enregistrer sous"_ba, u"Save As"_s}};
    auto const hachage = Boucle([&textes] { Garde(textes.value(QByteArray("Enregistrer sous"))); });
    auto const traducteur =
        Boucle([] { Garde(QCoreApplication::translate("menu", "Enregistrer sous")); });

    auto const simple =
        Boucle([&] { Garde(QString(LocalisateurContextuel(kSimple, contexte, locale))); });
    comparaison.Mesure("message, beside a QHash", simple, hachage, 0.0, kDureeMax);
    comparaison.Mesure("message, beside translate", simple, traducteur, 0.0, kDureeMax);
    comparaison.Mesure("message with a context", Boucle([&] {
                           Garde(QString(LocalisateurContextuel(kMenu, contexte, locale)));
                       }),
                       traducteur, 0.0, kDureeMax);
    comparaison.Mesure("message that is absent", Boucle([&] {
                           Garde(QString(LocalisateurContextuel(kAbsent, contexte, locale)));
                       }),
                       traducteur, 0.0, kDureeMax);
    comparaison.Mesure("plural", Boucle([&] {
                           Garde(QString(LocalisateurContextuel(kPluriel, 2, contexte, locale)));
                       }),
                       traducteur, 0.0, kDureeMax);
}

} // namespace

int main(int argc, char ** argv)
{
    QCoreApplication const application(argc, argv);
    QTemporaryDir const dossier;
    if (!FabriqueCatalogue(Messages()).Ecris(dossier.filePath(u"BenchEn.mo"_s)))
        return 2;
    ContexteLocalisation contexte;
    contexte.AjouteDomaine("Bench", dossier.filePath(u"Bench"_s).toStdString());
    QHash<QByteArray, QString> const textes{{"Enregistrer sous"_ba, u"Save As"_s}};
    TraducteurEnMemoire traducteur(textes);
    QCoreApplication::installTranslator(&traducteur);

    Comparaison comparaison;
    Mesure(comparaison, contexte);
    return comparaison.Resultat();
}
