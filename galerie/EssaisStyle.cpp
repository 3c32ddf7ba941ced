// galerie/EssaisStyle.cpp
#include "EssaisStyle.h"

#include "ProprietesMontrees.h"
#include "TraductionGalerie.h"

#include "controls/DTreeView.h"
#include "editing/DLineEdit.h"
#include "style/DStyleProxy.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QStandardItemModel>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kHauteurArbre = 128;
constexpr int kLargeurArbre = 300;
constexpr int kHauteurMenuLong = 160;

constexpr int kOnglets = 5;
constexpr int kElementsMenuLong = 20;

QStandardItem * CreeBranche(int numero)
{
    auto * const branche = new QStandardItem(TraductionGalerie(
        TexteGalerie("Mot <ex>vu</ex> {1}"), {UniChaine(QLocale().toString(numero))}));
    branche->setEditable(false);
    for (int i = 1; i <= 2; ++i)
        branche->appendRow({new QStandardItem(TraductionGalerie(TexteGalerie("Élément"))),
                            new QStandardItem(QLocale().toString(i))});
    return branche;
}

} // namespace

EssaisStyle::EssaisStyle(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition = new QHBoxLayout(this);
    disposition->setContentsMargins({});
    disposition->addWidget(CreeArbre());
    auto * const droite = new QVBoxLayout;
    droite->addWidget(CreeOnglets());
    droite->addWidget(CreeBoutons());
    droite->addWidget(CreeChamps());
    droite->addStretch();
    disposition->addLayout(droite, 1);
}

void EssaisStyle::MetsStyleDesWidgets(QStyle & style)
{
    for (QWidget * const widget : findChildren<QWidget *>())
        widget->setStyle(&style);
}

QWidget * EssaisStyle::CreeArbre()
{
    auto * const arbre = new DTreeView;
    auto * const modele = new QStandardItemModel(arbre);
    modele->setHorizontalHeaderLabels(
        {TraductionGalerie(TexteGalerie("Élément")), TraductionGalerie(TexteGalerie("Valeur"))});
    for (int i = 1; i <= 3; ++i)
        modele->appendRow({CreeBranche(i), new QStandardItem(QLocale().toString(i))});
    arbre->setModel(modele);
    arbre->setFixedSize(kLargeurArbre, kHauteurArbre);
    arbre->setEditTriggers(QAbstractItemView::NoEditTriggers);
    arbre->setAccessibleName(TraductionGalerie(TexteGalerie("Arbre")));
    arbre->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    arbre->header()->setStretchLastSection(false);
    arbre->setCurrentIndex(modele->index(1, 0));
    MetsPropriete(*arbre, DStyleProxy::DonneNomProprietePossedeRegleTexteRiche());
    MetsPropriete(*arbre, DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche());
    return arbre;
}

QWidget * EssaisStyle::CreeOnglets()
{
    auto * const barre = new QTabBar;
    barre->setAccessibleName(TraductionGalerie(TexteGalerie("Onglets")));
    for (int i = 1; i <= kOnglets; ++i)
        barre->addTab(
            TraductionGalerie(TexteGalerie("Onglet {1}"), {UniChaine(QLocale().toString(i))}));
    return barre;
}

QWidget * EssaisStyle::CreeBoutons()
{
    auto * const ligne = new QWidget;
    auto * const disposition = new QHBoxLayout(ligne);
    disposition->setContentsMargins({});
    auto * const defaut = new QPushButton(TraductionGalerie(TexteGalerie("Bouton par défaut")));
    defaut->setDefault(true);
    auto * const menu = new QToolButton;
    menu->setText(TraductionGalerie(TexteGalerie("Menu balisé")));
    menu->setPopupMode(QToolButton::MenuButtonPopup);
    menu->setMenu(CreeMenuRiche(menu));
    auto * const liste = new QComboBox;
    liste->setObjectName(u"essaiListe"_s);
    liste->setAccessibleName(TraductionGalerie(TexteGalerie("Liste déroulante")));
    for (int i = 1; i <= 3; ++i)
        liste->addItem(
            TraductionGalerie(TexteGalerie("Élément {1}"), {UniChaine(QLocale().toString(i))}));
    disposition->addWidget(defaut);
    disposition->addWidget(new QPushButton(TraductionGalerie(TexteGalerie("Bouton"))));
    disposition->addWidget(menu);
    disposition->addWidget(liste, 1);
    return ligne;
}

QWidget * EssaisStyle::CreeChamps()
{
    auto * const ligne = new QWidget;
    auto * const disposition = new QHBoxLayout(ligne);
    disposition->setContentsMargins({});
    auto * const champ = new DLineEdit;
    champ->setText(TraductionGalerie(TexteGalerie("Champ")));
    champ->setAccessibleName(champ->text());
    champ->setObjectName(u"essaiChamp"_s);
    auto * const coche = new QCheckBox(TraductionGalerie(TexteGalerie("Case à cocher")));
    coche->setObjectName(u"essaiCoche"_s);
    coche->setChecked(true);
    auto * const reglette = new QSlider(Qt::Horizontal);
    reglette->setObjectName(u"essaiReglette"_s);
    reglette->setValue(reglette->maximum() / 2);
    reglette->setAccessibleName(TraductionGalerie(TexteGalerie("Réglette")));
    disposition->addWidget(champ, 1);
    disposition->addWidget(coche);
    disposition->addWidget(reglette, 1);
    return ligne;
}

QMenu * CreeMenuRiche(QWidget * parent)
{
    auto * const menu = new QMenu(parent);
    MetsPropriete(*menu, DStyleProxy::DonneNomProprietePossedeRegleTexteRiche());
    MetsPropriete(*menu, DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche());
    QString const texte = TraductionGalerie(TexteGalerie("Mot <ex>vu</ex>"));
    menu->addAction(texte);
    QAction * const coche = menu->addAction(texte + u"\tCtrl+E"_s);
    coche->setCheckable(true);
    coche->setChecked(true);
    menu->addSeparator();
    menu->addAction(texte)->setEnabled(false);
    return menu;
}

QWidget * CreeBoutonMenuLong(bool defilant, QWidget * parent)
{
    auto * const bouton =
        new QPushButton(TraductionGalerie(TexteGalerie("Ouvrir le menu")), parent);
    auto * const menu = new QMenu(bouton);
    menu->setMaximumHeight(kHauteurMenuLong);
    if (defilant)
        MetsPropriete(*menu, DStyleProxy::DonneNomAttributPourStyleScrolling());
    for (int i = 1; i <= kElementsMenuLong; ++i)
        menu->addAction(
            TraductionGalerie(TexteGalerie("Élément {1}"), {UniChaine(QLocale().toString(i))}));
    bouton->setMenu(menu);
    return bouton;
}
