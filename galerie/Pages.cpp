// galerie/Pages.cpp
#include "Pages.h"

#include "PageAlertes.h"
#include "PageAssistant.h"
#include "PageBoutons.h"
#include "PageChevron.h"
#include "PageCombos.h"
#include "PageEcrans.h"
#include "PageFenetres.h"
#include "PageFiltres.h"
#include "PageJetons.h"
#include "PageListeModifiable.h"
#include "PagePolices.h"
#include "PagePriseEnMain.h"
#include "PageRecherche.h"
#include "PageStyle.h"
#include "PageTactile.h"
#include "PageTexteRiche.h"
#include "PageTextes.h"
#include "PageTheme.h"
#include "PageVues.h"
#include "ThemeGalerie.h"
#include "TraductionGalerie.h"

#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

QList<DescriptionPage> const & DonnePages()
{
    static QList<DescriptionPage> const pages = {
        {TexteGalerie("Thème"), u"theme"_s,
         [](ThemeGalerie & theme) -> QWidget * { return new PageTheme(theme); }},
        {TexteGalerie("Textes"), u"textes"_s,
         [](ThemeGalerie &) -> QWidget * { return new PageTextes; }},
        {TexteGalerie("Polices"), u"polices"_s,
         [](ThemeGalerie &) -> QWidget * { return new PagePolices; }},
        {TexteGalerie("Écrans"), u"ecrans"_s,
         [](ThemeGalerie &) -> QWidget * { return new PageEcrans; }},
        {TexteGalerie("Alertes"), u"alertes"_s,
         [](ThemeGalerie &) -> QWidget * { return new PageAlertes; }},
        {TexteGalerie("Fenêtres"), u"fenetres"_s,
         [](ThemeGalerie &) -> QWidget * { return new PageFenetres; }},
        {TexteGalerie("Style"), u"style"_s,
         [](ThemeGalerie & theme) -> QWidget * { return new PageStyle(theme.DonneStyleDeBase()); }},
        {TexteGalerie("Texte riche"), u"texteriche"_s,
         [](ThemeGalerie &) -> QWidget * { return new PageTexteRiche; }},
        {TexteGalerie("Boutons"), u"boutons"_s,
         [](ThemeGalerie &) -> QWidget * { return new PageBoutons; }},
        {TexteGalerie("Combos et menus"), u"combos"_s,
         [](ThemeGalerie &) -> QWidget * { return new PageCombos; }},
        {TexteGalerie("Vues"), u"vues"_s, [](ThemeGalerie &) -> QWidget * { return new PageVues; }},
        {TexteGalerie("Tactile"), u"tactile"_s,
         [](ThemeGalerie &) -> QWidget * { return new PageTactile; }},
        {TexteGalerie("Recherche"), u"recherche"_s,
         [](ThemeGalerie &) -> QWidget * { return new PageRecherche; }},
        {TexteGalerie("Liste modifiable"), u"liste"_s,
         [](ThemeGalerie &) -> QWidget * { return new PageListeModifiable; }},
        {TexteGalerie("Chevron"), u"chevron"_s,
         [](ThemeGalerie &) -> QWidget * { return new PageChevron; }},
        {TexteGalerie("Filtres"), u"filtres"_s,
         [](ThemeGalerie &) -> QWidget * { return new PageFiltres; }},
        {TexteGalerie("Jetons"), u"jetons"_s,
         [](ThemeGalerie &) -> QWidget * { return new PageJetons; }},
        {TexteGalerie("Assistant"), u"assistant"_s,
         [](ThemeGalerie &) -> QWidget * { return new PageAssistant; }},
        {TexteGalerie("Prise en main"), u"accueil"_s,
         [](ThemeGalerie &) -> QWidget * { return new PagePriseEnMain; }},
    };
    return pages;
}

QIcon CreeIconePage(DescriptionPage const & page)
{
    QString const chemin = u":/images/"_s + page.nom + u".svg"_s;
    QIcon icone(chemin);
    icone.addFile(chemin, QSize(), QIcon::Selected);
    return icone;
}

QVBoxLayout * CreeMiseEnPage(QWidget * page, QString const & titre, QString const & explication)
{
    constexpr int kMarge = 20;      // logical pixels, around the page
    constexpr int kEspacement = 12; // logical pixels, between its parts

    auto * const disposition = new QVBoxLayout(page);
    disposition->setContentsMargins(kMarge, kMarge, kMarge, kMarge);
    disposition->setSpacing(kEspacement);

    auto * const etiquetteTitre = new QLabel(titre);
    etiquetteTitre->setObjectName(u"titrePage"_s);
    disposition->addWidget(etiquetteTitre);

    auto * const etiquetteExplication = new QLabel(explication);
    etiquetteExplication->setObjectName(u"explicationPage"_s);
    etiquetteExplication->setWordWrap(true);
    disposition->addWidget(etiquetteExplication);
    return disposition;
}

void PrepareTable(QTableView & table)
{
    constexpr int kHauteurLigne = 24; // logical pixels

    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setAlternatingRowColors(true);
    table.setTabKeyNavigation(false); // the arrows move inside it
    table.setWordWrap(false);
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(kHauteurLigne);
}
