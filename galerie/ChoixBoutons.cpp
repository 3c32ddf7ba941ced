// galerie/ChoixBoutons.cpp
#include "ChoixBoutons.h"

#include "ChampAvecDefaut.h"
#include "TraductionGalerie.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

using namespace DDialogue;
using namespace Qt::StringLiterals;

namespace {

struct Description
{
    eBoutons bouton;
    char16_t const * nom; // as an application writes it, behind the prefix
};

constexpr Description kBoutons[] = {
    {kBoutonOk, u"Ok"},
    {kBoutonAnnuler, u"Annuler"},
    {kBoutonAppliquer, u"Appliquer"},
    {kBoutonFermer, u"Fermer"},
    {kBoutonSauvegarder, u"Sauvegarder"},
    {kBoutonSauvegarderTout, u"SauvegarderTout"},
    {kBoutonAide, u"Aide"},
    {kBoutonOui, u"Oui"},
    {kBoutonOuiTout, u"OuiTout"},
    {kBoutonNon, u"Non"},
    {kBoutonNonTout, u"NonTout"},
    {kBoutonReessayer, u"Reessayer"},
    {kBoutonIgnorer, u"Ignorer"},
    {kBoutonContinuer, u"Continuer"},
    {kBoutonEssayer, u"Essayer"},
    {kBoutonMaison1, u"Maison1"},
    {kBoutonMaison2, u"Maison2"},
    {kBoutonMaison3, u"Maison3"},
    {kBoutonMaison4, u"Maison4"},
    {kBoutonMaison5, u"Maison5"},
    {kBoutonMaisonElevee1, u"MaisonElevee1"},
};
constexpr char16_t kPrefixe[] = u"kBouton";
constexpr int kColonnes = 6;
constexpr unsigned kAuDepart = kBoutonOui | kBoutonNon | kBoutonAnnuler;

QString DonneNom(eBoutons bouton)
{
    auto const * const trouvee = std::ranges::find(kBoutons, bouton, &Description::bouton);
    if (trouvee != std::end(kBoutons))
        return QString::fromUtf16(trouvee->nom);
    return bouton == kBoutonAucun ? u"Aucun"_s : QString();
}

} // namespace

QString DonneNomReponse(int reponse)
{
    auto const valeur = static_cast<unsigned>(reponse);
    QString const nom = DonneNom(static_cast<eBoutons>(valeur));
    if (!nom.isEmpty())
        return u"%1%2 (%3)"_s.arg(QString::fromUtf16(kPrefixe), nom).arg(valeur);
    if (valeur & kBoutonLien)
        return u"%1Lien | %2"_s.arg(QString::fromUtf16(kPrefixe))
            .arg(valeur & ~static_cast<unsigned>(kBoutonLien));
    return QString::number(valeur);
}

ChoixBoutons::ChoixBoutons(QWidget * parent)
    : QGroupBox(TraductionGalerie(TexteGalerie("Boutons")), parent)
{
    auto * const disposition = new QVBoxLayout(this);
    disposition->addLayout(CreeCases());
    disposition->addLayout(CreeChoix());
    disposition->addLayout(CreeLabels());
}

QLayout * ChoixBoutons::CreeCases()
{
    auto * const grille = new QGridLayout;
    grille->setVerticalSpacing(2);
    for (Description const & description : kBoutons) {
        QString const nom = QString::fromUtf16(description.nom);
        auto * const coche = new QCheckBox(nom);
        coche->setObjectName(QString::fromUtf16(kPrefixe) + nom);
        coche->setToolTip(coche->objectName());
        coche->setChecked(kAuDepart & description.bouton);
        int const rang = static_cast<int>(mesCases.size());
        grille->addWidget(coche, rang / kColonnes, rang % kColonnes);
        mesCases.append(coche);
    }
    return grille;
}

QLayout * ChoixBoutons::CreeChoix()
{
    auto * const ligne = new QHBoxLayout;
    struct
    {
        QComboBox *& choix;
        QString nom;
        ChaineLocalisable libelle;
        eBoutons auDepart;
    } const descriptions[] = {
        {monDefaut, u"boutonDefaut"_s, TexteGalerie("Pou&r Entrée"), kBoutonOui},
        {monEchap, u"boutonEchap"_s, TexteGalerie("Pour Éc&happement"), kBoutonAnnuler},
    };
    for (auto const & [choix, nom, libelle, auDepart] : descriptions) {
        choix = new QComboBox;
        choix->setObjectName(nom);
        choix->addItem(DonneNom(kBoutonAucun), static_cast<unsigned>(kBoutonAucun));
        for (Description const & description : kBoutons)
            choix->addItem(QString::fromUtf16(description.nom),
                           static_cast<unsigned>(description.bouton));
        choix->setCurrentIndex(choix->findData(static_cast<unsigned>(auDepart)));
        auto * const etiquette = new QLabel(TraductionGalerie(libelle));
        etiquette->setBuddy(choix);
        ligne->addWidget(etiquette);
        ligne->addWidget(choix);
    }
    ligne->addStretch();
    return ligne;
}

QLayout * ChoixBoutons::CreeLabels()
{
    auto * const ligne = new QHBoxLayout;
    auto * const etiquette = new QLabel(TraductionGalerie(TexteGalerie("Textes maison")));
    ligne->addWidget(etiquette);
    for (std::size_t i = 0; i < mesLabels.size(); ++i) {
        UniChaine const numero(QString::number(i + 1));
        mesLabels[i] = new ChampAvecDefaut(TraductionGalerie(TexteGalerie("Maison {1}"), {numero}));
        mesLabels[i]->setObjectName(u"label"_s + QString(numero));
        mesLabels[i]->setAccessibleName(
            TraductionGalerie(TexteGalerie("Texte du bouton maison {1}"), {numero}));
        ligne->addWidget(mesLabels[i]);
    }
    etiquette->setBuddy(mesLabels.front());
    return ligne;
}

int ChoixBoutons::DonneMasque() const
{
    unsigned masque = kBoutonAucun;
    for (int i = 0; i < mesCases.size(); ++i)
        if (mesCases.at(i)->isChecked())
            masque |= kBoutons[i].bouton;
    return static_cast<int>(masque);
}

eBoutons ChoixBoutons::DonneDefaut() const
{
    return static_cast<eBoutons>(monDefaut->currentData().toUInt());
}

eBoutons ChoixBoutons::DonneEchap() const
{
    return static_cast<eBoutons>(monEchap->currentData().toUInt());
}

std::array<UniChaine, 5> ChoixBoutons::DonneLabels() const
{
    std::array<UniChaine, 5> labels;
    std::ranges::transform(mesLabels, labels.begin(),
                           [](ChampAvecDefaut const * champ) { return UniChaine(champ->text()); });
    return labels;
}
