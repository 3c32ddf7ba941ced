// galerie/PageBoutons.cpp
#include "PageBoutons.h"

#include "Pages.h"
#include "TraceSignaux.h"
#include "TraductionGalerie.h"

#include "controls/DBoutonSansFleche.h"
#include "controls/DCheckBox.h"
#include "controls/DControleBoutonsExclusifs.h"
#include "controls/DImageCliquable.h"
#include "controls/DLabelClickable.h"
#include "controls/DLabelElisionClickable.h"
#include "controls/DRadioButton.h"
#include "controls/DToggleButton.h"
#include "controls/DToolButtonRiche.h"
#include "foundation/Polices.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kHauteurTrace = 72;
constexpr int kEcart = 16;       // between two groups
constexpr int kLargeurMenu = 20; // at least, of the part of a button that opens its menu
constexpr int kLargeurElision = 150;

constexpr auto kSemaine = "semaine"_L1; // the button with a part for a menu

constexpr ChaineLocalisable kEtatsDesBascules[] = {TexteGalerie("Éteinte"), TexteGalerie("Allumée"),
                                                   TexteGalerie("Désactivées")};

} // namespace

PageBoutons::PageBoutons(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition = CreeMiseEnPage(
        this, TraductionGalerie(TexteGalerie("Boutons")),
        TraductionGalerie(TexteGalerie("Les boutons dans tous leurs états, à la souris et au "
                                       "clavier, et les signaux qu’ils émettent.")));
    auto * const grille = new QGridLayout;
    grille->addWidget(CreeCases(), 0, 0);
    grille->addWidget(CreeBascules(), 0, 1);
    grille->addWidget(CreeRadios(), 1, 0);
    grille->addWidget(CreeBoutonsOutil(), 1, 1);
    grille->addWidget(CreeCliquables(), 2, 0);
    grille->addWidget(CreeBoutonsSansFleche(), 2, 1);
    grille->setColumnStretch(0, 1);
    grille->setColumnStretch(1, 1);
    disposition->addLayout(grille);
    disposition->addWidget(CreeGroupesExclusifs());
    disposition->addWidget(CreeTrace());
    disposition->addStretch();
    Branche();
}

QWidget * PageBoutons::CreeCases()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Cases à cocher")));
    auto * const disposition = new QVBoxLayout(groupe);
    struct
    {
        QString nom;
        ChaineLocalisable texte;
        bool cochay;
    } const cases[] = {
        {u"caseNormale"_s, TexteGalerie("Une option"), false},
        {u"caseCochee"_s, TexteGalerie("Une option <b>cochée</b>"), true},
        {u"caseLongue"_s,
         TexteGalerie("Une longue option, dont le texte <i>riche</i> passe à la ligne où la place "
                      "manque ; un clic sur son <a href=\"#lien\">lien</a> ne fait que la cocher"),
         false},
        {u"caseFigee"_s, TexteGalerie("Une valeur figée"), true},
        {u"caseInactive"_s, TexteGalerie("Une case désactivée"), true},
    };
    for (auto const & description : cases) {
        auto * const option =
            new DCheckBox(TraductionGalerie(description.texte), groupe, description.cochay);
        option->setObjectName(description.nom);
        option->MetsUtilisateurPeutChangerValeur(description.nom != u"caseFigee");
        option->setEnabled(description.nom != u"caseInactive");
        disposition->addWidget(option);
    }
    disposition->addStretch();
    return groupe;
}

QWidget * PageBoutons::CreeRadios()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Boutons radio")));
    auto * const disposition = new QVBoxLayout(groupe);
    auto * const exclusion = new QButtonGroup(groupe);
    std::pair<QString, ChaineLocalisable> const boutons[] = {
        {u"radioPremier"_s, TexteGalerie("Le premier choix")},
        {u"radioDeuxieme"_s, TexteGalerie("Le <b>deuxième</b>, en <i>texte riche</i>")},
        {u"radioInactif"_s, TexteGalerie("Le troisième, désactivé")},
    };
    for (auto const & [nom, texte] : boutons) {
        bool const premier = nom == u"radioPremier";
        auto * const bouton =
            new DRadioButton(TraductionGalerie(texte), groupe, premier, exclusion);
        bouton->setObjectName(nom);
        bouton->setEnabled(nom != u"radioInactif");
        disposition->addWidget(bouton);
    }
    disposition->addStretch();
    return groupe;
}

QWidget * PageBoutons::CreeBascules()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Bascules")));
    auto * const grille = new QGridLayout(groupe);
    for (int i = 0; i < static_cast<int>(std::size(kEtatsDesBascules)); ++i) {
        // The last title stands above two columns.
        int const colonnes = i + 1 < static_cast<int>(std::size(kEtatsDesBascules)) ? 1 : 2;
        grille->addWidget(new QLabel(TraductionGalerie(kEtatsDesBascules[i])), 0, i + 1, 1,
                          colonnes);
    }
    // Logical pixels: a thumb in its track, a small switch, and a thumb as large as the track.
    for (auto const & [piste, pouce] : {std::pair(12, 9), std::pair(8, 6), std::pair(11, 11)})
        AjouteBascules(*grille, piste, pouce);
    grille->setColumnStretch(0, 1);
    grille->setRowStretch(grille->rowCount(), 1);
    return groupe;
}

void PageBoutons::AjouteBascules(QGridLayout & grille, int piste, int pouce)
{
    int const ligne = grille.rowCount();
    QString const titre =
        TraductionGalerie(TexteGalerie("Rayons {1} et {2}"), {UniChaine(locale().toString(piste)),
                                                              UniChaine(locale().toString(pouce))});
    grille.addWidget(new QLabel(titre), ligne, 0);
    for (int i = 0; i < 4; ++i) {
        bool const actif = i < 2;
        auto * const bascule = new DToggleButton(piste, pouce);
        bascule->setObjectName(u"bascule%1_%2"_s.arg(ligne).arg(i));
        bascule->setAccessibleName(TraductionGalerie(
            TexteGalerie("{1}, {2}"),
            {UniChaine(titre), UniChaine(TraductionGalerie(kEtatsDesBascules[std::min(i, 2)]))}));
        bascule->setChecked(i % 2 == 1);
        bascule->setEnabled(actif);
        grille.addWidget(bascule, ligne, i + 1, Qt::AlignLeading | Qt::AlignVCenter);
    }
}

QWidget * PageBoutons::CreeBoutonsOutil()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Boutons d’outil riches")));
    auto * const disposition = new QHBoxLayout(groupe);
    QString const html = TraductionGalerie(TexteGalerie("<b>Gras</b> et <i>italique</i>"));
    for (QString const & nom :
         {u"outilHtml"_s, u"outilMenu"_s, u"outilInactif"_s, u"outilBrut"_s}) {
        auto * const bouton = new DToolButtonRiche(groupe);
        bouton->setObjectName(nom);
        if (nom == u"outilBrut")
            bouton->setText(TraductionGalerie(TexteGalerie("Texte &brut")));
        else
            bouton->setHtml(html);
        bouton->setEnabled(nom != u"outilInactif");
        if (nom == u"outilMenu") {
            bouton->setMenu(CreeMenu());
            bouton->setPopupMode(QToolButton::MenuButtonPopup);
            // The HTML stands in the middle of the button, whose hint is the size of the HTML.
            bouton->setMinimumWidth(bouton->sizeHint().width() + 2 * kLargeurMenu);
        }
        disposition->addWidget(bouton);
    }
    disposition->addStretch();
    return groupe;
}

QWidget * PageBoutons::CreeBoutonsSansFleche()
{
    auto * const groupe =
        new QGroupBox(TraductionGalerie(TexteGalerie("Boutons à menu sans flèche")));
    auto * const disposition = new QHBoxLayout(groupe);
    std::pair<QToolButton::ToolButtonPopupMode, ChaineLocalisable> const modes[] = {
        {QToolButton::DelayedPopup, TexteGalerie("Après un délai")},
        {QToolButton::MenuButtonPopup, TexteGalerie("Au bord droit")},
        {QToolButton::InstantPopup, TexteGalerie("Au clic")},
    };
    for (auto const & [mode, texte] : modes) {
        auto * const bouton = new DBoutonSansFleche(groupe);
        bouton->setText(TraductionGalerie(texte));
        bouton->setMenu(CreeMenu());
        bouton->setPopupMode(mode);
        disposition->addWidget(bouton);
    }
    disposition->addStretch();
    return groupe;
}

QWidget * PageBoutons::CreeGroupesExclusifs()
{
    using Infos = DControleBoutonsExclusifs::InfosBouton;
    auto const infos = [](QString const & id, ChaineLocalisable texte, bool cochay = false,
                          bool menu = false) {
        return Infos{UniChaine(TraductionGalerie(texte)), id, cochay, menu};
    };
    std::vector<Infos> notes;
    for (int note = 1; note <= 5; ++note)
        notes.push_back({UniChaine(locale().toString(note)), note, note == 3, false});
    monGroupeAvecMenu =
        new DControleBoutonsExclusifs({infos(u"jour"_s, TexteGalerie("Jour")),
                                       infos(kSemaine, TexteGalerie("Semaine"), true, true),
                                       infos(u"mois"_s, TexteGalerie("Mois"))});

    auto * const deux =
        new DControleBoutonsExclusifs({infos(u"liste"_s, TexteGalerie("Liste"), true),
                                       infos(u"grille"_s, TexteGalerie("Grille"))});
    monMenuAffichay = new QCheckBox(TraductionGalerie(TexteGalerie("Partie du &menu")));
    monMenuAffichay->setObjectName(u"partieMenu"_s);
    monMenuAffichay->setChecked(true);

    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Groupes exclusifs")));
    auto * const disposition = new QVBoxLayout(groupe);
    auto * const haut = new QHBoxLayout;
    haut->addWidget(deux);
    haut->addSpacing(kEcart);
    haut->addWidget(monGroupeAvecMenu);
    haut->addWidget(monMenuAffichay);
    haut->addStretch();
    disposition->addLayout(haut);
    disposition->addWidget(new DControleBoutonsExclusifs(std::move(notes)), 0, Qt::AlignLeading);
    // The gallery keeps what the user chose under the names of the widgets.
    for (auto * const controle : groupe->findChildren<DControleBoutonsExclusifs *>())
        for (auto * const bouton : controle->findChildren<QAbstractButton *>())
            bouton->setObjectName(u"exclusif_"_s + bouton->property("identifiant").toString());
    return groupe;
}

QWidget * PageBoutons::CreeCliquables()
{
    auto * const groupe =
        new QGroupBox(TraductionGalerie(TexteGalerie("Image et étiquettes cliquables")));
    auto * const disposition = new QHBoxLayout(groupe);
    auto * const image =
        new DImageCliquable(RoutinesGeneralesQt::DonnePixmapAvecDPI(u":/images/echantillon.png"_s));
    image->setAccessibleName(TraductionGalerie(TexteGalerie("Image cliquable")));
    disposition->addWidget(image);
    auto * const etiquette =
        new DLabelClickable(TraductionGalerie(TexteGalerie("Une étiquette cliquable")));
    etiquette->setCursor(Qt::PointingHandCursor);
    auto * const abregee = new DLabelElisionClickable(TraductionGalerie(
        TexteGalerie("Une étiquette <b>cliquable</b>, bien trop longue pour sa place")));
    abregee->setCursor(Qt::PointingHandCursor);
    abregee->setFixedWidth(kLargeurElision);
    auto * const etiquettes = new QVBoxLayout;
    etiquettes->addStretch();
    etiquettes->addWidget(etiquette);
    etiquettes->addWidget(abregee);
    etiquettes->addStretch();
    disposition->addLayout(etiquettes);
    disposition->addStretch();
    return groupe;
}

QWidget * PageBoutons::CreeTrace()
{
    maTrace = new TraceSignaux(TraductionGalerie(TexteGalerie("Signaux")));
    return EtiquetteTrace(*maTrace, TraductionGalerie(TexteGalerie("&Signaux")), kHauteurTrace);
}

QMenu * PageBoutons::CreeMenu()
{
    auto * const menu = new QMenu(this);
    menu->addAction(TraductionGalerie(TexteGalerie("Une action")));
    menu->addAction(TraductionGalerie(TexteGalerie("Une autre action")));
    return menu;
}

void PageBoutons::Branche()
{
    SuisCases();
    SuisBoutons();
    connect(monMenuAffichay, &QCheckBox::toggled, this, &PageBoutons::PriseMenuAffichay,
            Qt::UniqueConnection);
}

void PageBoutons::SuisCases()
{
    for (auto * const option : findChildren<DCheckBox *>()) {
        maTrace->Suis(option, &DCheckBox::pressed, u"pressed"_s);
        maTrace->Suis(option, &DCheckBox::released, u"released"_s);
        maTrace->Suis(option, &DCheckBox::clicked, u"clicked"_s);
        maTrace->Suis(option, &DCheckBox::stateChanged, u"stateChanged"_s);
        maTrace->Suis(option, &DCheckBox::toggled, u"toggled"_s);
    }
    for (auto * const bouton : findChildren<DBoutonAbstrait *>())
        maTrace->Suis(bouton, &DBoutonAbstrait::SignalCochageChangay, u"SignalCochageChangay"_s);
    for (auto * const bascule : findChildren<DToggleButton *>())
        maTrace->Suis(bascule, &QAbstractButton::toggled, u"toggled"_s);
}

void PageBoutons::SuisBoutons()
{
    for (auto * const bouton : findChildren<DToolButtonRiche *>())
        maTrace->Suis(bouton, &QAbstractButton::clicked, u"clicked"_s);
    for (auto * const bouton : findChildren<DBoutonSansFleche *>())
        maTrace->Suis(bouton, &QAbstractButton::clicked, u"clicked"_s);
    for (auto * const menu : findChildren<QMenu *>())
        maTrace->Suis(menu, &QMenu::triggered, u"triggered"_s);
    for (auto * const controle : findChildren<DControleBoutonsExclusifs *>()) {
        maTrace->Suis(controle, &DControleBoutonsExclusifs::toggled, u"toggled"_s);
        maTrace->Suis(controle, &DControleBoutonsExclusifs::menuCliquay, u"menuCliquay"_s);
    }
    auto * const image = findChild<DImageCliquable *>();
    maTrace->Suis(image, &DImageCliquable::SignalImageCliquee, u"SignalImageCliquee"_s);
    maTrace->Suis(image, &DImageCliquable::SignalImageDoubleCliquee, u"SignalImageDoubleCliquee"_s);
    maTrace->Suis(findChild<DLabelClickable *>(), &DLabelClickable::SignalCliquer,
                  u"SignalCliquer"_s);
    maTrace->Suis(findChild<DLabelElisionClickable *>(), &DLabelElisionClickable::SignalCliquer,
                  u"SignalCliquer"_s);
}

void PageBoutons::PriseMenuAffichay(bool affichay)
{
    monGroupeAvecMenu->AjusterAffichageMenuBoutons(QString(kSemaine), affichay);
}
