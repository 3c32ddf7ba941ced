// galerie/PageTexteRiche.cpp
#include "PageTexteRiche.h"

#include "ChampAvecDefaut.h"
#include "DessinTexteRiche.h"
#include "JetonsTexteRiche.h"
#include "Pages.h"
#include "RangsRiches.h"
#include "TraductionGalerie.h"

#include "controls/DLabelElision.h"
#include "editing/DLineEdit.h"
#include "editing/DLineEditRaccourci.h"
#include "editing/DValidateurMajuscule.h"
#include "foundation/TexteRiche.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QRegularExpression>
#include <QSlider>
#include <QTableView>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kHauteurTable = 128;
constexpr int kLargeurJeton = 190;
constexpr int kLargeurNombre = 70;
constexpr int kLargeurPortion = 120;
constexpr int kLargeurMin = 40; // of what is drawn or elided
constexpr int kLargeurMax = 390;
constexpr int kLargeurAuDepart = 300;

QTableView * CreeTable(QStandardItemModel & modele, QString const & nom, int premiereColonne)
{
    auto * const table = new QTableView;
    table->setModel(&modele);
    table->setAccessibleName(nom);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setFixedHeight(kHauteurTable);
    PrepareTable(*table);
    table->setColumnWidth(0, premiereColonne);
    table->horizontalHeader()->setSectionResizeMode(modele.columnCount() - 1, QHeaderView::Stretch);
    return table;
}

// A line feed of the text would start a line of the table.
QString EnUneLigne(QString texte)
{
    return texte.replace(u'\n', u'↵');
}

// A token of nothing but blanks would look like an empty cell.
QString EnVisible(QString texte)
{
    return texte.trimmed().isEmpty() ? texte.replace(u' ', u'␣') : texte;
}

QList<QStandardItem *> CreeRang(QStringList const & textes)
{
    QList<QStandardItem *> rang;
    for (QString const & texte : textes) {
        rang.append(new QStandardItem(texte));
        rang.last()->setToolTip(texte.toHtmlEscaped());
    }
    return rang;
}

} // namespace

PageTexteRiche::PageTexteRiche(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition = CreeMiseEnPage(
        this, TraductionGalerie(TexteGalerie("Texte riche")),
        TraductionGalerie(TexteGalerie("Un texte balisé, les jetons et les formats qu’on y lit, ce "
                                       "qu’on en dessine ; des étiquettes, des champs et une "
                                       "longue liste.")));
    disposition->addLayout(CreeSaisie());
    disposition->addLayout(CreeTables());
    disposition->addLayout(CreeLargeur());
    auto * const milieu = new QHBoxLayout;
    milieu->addWidget(CreeDessins(), 1);
    milieu->addWidget(CreeElisions(), 1);
    disposition->addLayout(milieu);
    auto * const bas = new QHBoxLayout;
    bas->addWidget(CreeListe(), 1);
    bas->addWidget(CreeChamps(), 1);
    disposition->addLayout(bas, 1);

    PriseTexteChangay();
    PriseLargeurChangee();
    PriseErreurChangee();
    Branche();
}

QLayout * PageTexteRiche::CreeSaisie()
{
    auto * const saisie = new QHBoxLayout;
    monTexte = new ChampAvecDefaut(TraductionGalerie(TexteGalerie(
        "<pn>Dupré</pn> <b>gras</b>, <i>italique</i>, x<sup>2</sup>, H<sub>2</sub>O, <s>capitales"
        "</s>, <font color =\"#e2574c\">rouge</font>, <span class=\"surlignement\">vu</span>")));
    monTexte->setObjectName(u"texteBalisay"_s);
    monTexte->setCursorPosition(0);
    maSource = new ChampAvecDefaut(TraductionGalerie(TexteGalerie("Une <b>source</b>")));
    maSource->setObjectName(u"source"_s);
    std::pair<QString, QLineEdit *> const champs[] = {
        {TraductionGalerie(TexteGalerie("Texte bali&sé")), monTexte},
        {TraductionGalerie(TexteGalerie("S&ource")), maSource},
    };
    for (auto const & [nom, champ] : champs) {
        auto * const etiquette = new QLabel(nom);
        etiquette->setBuddy(champ);
        saisie->addWidget(etiquette);
        saisie->addWidget(champ, champ == monTexte ? 4 : 1);
    }
    return saisie;
}

QLayout * PageTexteRiche::CreeTables()
{
    mesJetons.setHorizontalHeaderLabels(
        {TraductionGalerie(TexteGalerie("Jeton")), TraductionGalerie(TexteGalerie("Effet"))});
    mesFormats.setHorizontalHeaderLabels(
        {TraductionGalerie(TexteGalerie("Début")), TraductionGalerie(TexteGalerie("Longueur")),
         TraductionGalerie(TexteGalerie("Portion")), TraductionGalerie(TexteGalerie("Format"))});
    auto * const jetons =
        CreeTable(mesJetons, TraductionGalerie(TexteGalerie("Jetons")), kLargeurJeton);
    jetons->setObjectName(u"jetons"_s);
    auto * const formats =
        CreeTable(mesFormats, TraductionGalerie(TexteGalerie("Formats")), kLargeurNombre);
    formats->setObjectName(u"formats"_s);
    formats->setColumnWidth(1, kLargeurNombre);
    formats->setColumnWidth(2, kLargeurPortion);
    auto * const tables = new QHBoxLayout;
    tables->addWidget(jetons, 1);
    tables->addWidget(formats, 1);
    return tables;
}

QLayout * PageTexteRiche::CreeLargeur()
{
    auto * const largeur = new QHBoxLayout;
    maLargeur = new QSlider(Qt::Horizontal);
    maLargeur->setObjectName(u"largeur"_s);
    maLargeur->setRange(kLargeurMin, kLargeurMax);
    maLargeur->setValue(kLargeurAuDepart);
    auto * const etiquette = new QLabel(TraductionGalerie(TexteGalerie("L&argeur")));
    etiquette->setBuddy(maLargeur);
    maValeurLargeur = new QLabel;
    largeur->addWidget(etiquette);
    largeur->addWidget(maLargeur, 1);
    largeur->addWidget(maValeurLargeur);
    return largeur;
}

QWidget * PageTexteRiche::CreeDessins()
{
    using Dessin = DessinTexteRiche;
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Dessin")));
    auto * const disposition = new QVBoxLayout(groupe);
    for (auto const forme : {Dessin::kUneLigne, Dessin::kDeuxLignes, Dessin::kAvecSource,
                             Dessin::kDeuxLignesAvecSource}) {
        mesDessins.append(new Dessin(forme));
        disposition->addWidget(mesDessins.last(), 0, Qt::AlignLeading);
    }
    disposition->addStretch();
    return groupe;
}

QWidget * PageTexteRiche::CreeElisions()
{
    std::pair<DLabelElision::Elision, ChaineLocalisable> const modes[] = {
        {DLabelElision::kSansElision, TexteGalerie("Sans élision")},
        {DLabelElision::kElisionFin, TexteGalerie("Élision à la fin")},
        {DLabelElision::kElisionDebut, TexteGalerie("Élision au début")},
    };
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Étiquettes")));
    auto * const disposition = new QVBoxLayout(groupe);
    QString const texte =
        TraductionGalerie(TexteGalerie("<p>Un <b>long</b> chemin, dont le <i>début</i> ou la "
                                       "<i>fin</i> dit l’<b>essentiel</b></p>"));
    for (auto const & [mode, nom] : modes) {
        auto * const label = new DLabelElision(texte, nullptr);
        label->PrendsModeElision(mode);
        mesElisions.append(label);
        auto * const titre = new QLabel(TraductionGalerie(nom));
        titre->setObjectName(u"explicationPage"_s); // the sheet's colour for explanations
        disposition->addWidget(titre);
        disposition->addWidget(label, 0, Qt::AlignLeading);
    }
    disposition->addStretch();
    return groupe;
}

QWidget * PageTexteRiche::CreeChamps()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Champs")));
    auto * const formulaire = new QFormLayout(groupe);
    monChampErreur = new DLineEdit;
    monChampErreur->setObjectName(u"champErreur"_s);
    monChampErreur->setText(TraductionGalerie(TexteGalerie("Une valeur")));
    monErreur = new QCheckBox(TraductionGalerie(TexteGalerie("&Erronée")));
    monErreur->setObjectName(u"erreur"_s);
    monErreur->setChecked(true);
    monRaccourci = new DLineEditRaccourci;
    monRaccourci->setObjectName(u"raccourci"_s);
    monRaccourci->setPlaceholderText(
        TraductionGalerie(TexteGalerie("Appuyez sur une combinaison de touches")));
    monDernierRaccourci = new QLabel(TraductionGalerie(TexteGalerie("Aucun raccourci enregistré")));
    auto * const majuscules = new QLineEdit;
    majuscules->setObjectName(u"majuscules"_s);
    QRegularExpression lettres(u"\\p{Lu}*"_s);
    majuscules->setValidator(new DValidateurMajuscule(lettres, majuscules));
    majuscules->setPlaceholderText(
        TraductionGalerie(TexteGalerie("Des lettres, mises en capitales")));
    formulaire->addRow(TraductionGalerie(TexteGalerie("Vale&ur")), monChampErreur);
    formulaire->addRow(QString(), monErreur);
    formulaire->addRow(TraductionGalerie(TexteGalerie("Raccourc&i")), monRaccourci);
    formulaire->addRow(QString(), monDernierRaccourci);
    formulaire->addRow(TraductionGalerie(TexteGalerie("&Capitales")), majuscules);
    return groupe;
}

QWidget * PageTexteRiche::CreeListe()
{
    auto * const groupe = new QGroupBox(TraductionPlurielGalerie(
        TextePlurielGalerie("{1} rang balisé", "{1} rangs balisés"), RangsRiches::kRangs));
    auto * const disposition = new QVBoxLayout(groupe);
    auto * const liste = new QListView;
    liste->setObjectName(u"listeRiche"_s);
    liste->setAccessibleName(groupe->title());
    liste->setModel(new RangsRiches(liste));
    liste->setItemDelegate(new DelegueRangRiche(liste));
    liste->setUniformItemSizes(true); // or the view would measure every row
    liste->setCurrentIndex(liste->model()->index(1, 0));
    disposition->addWidget(liste);
    return groupe;
}

void PageTexteRiche::Branche()
{
    for (QLineEdit const * const champ : {monTexte, maSource})
        connect(champ, &QLineEdit::textChanged, this, &PageTexteRiche::PriseTexteChangay,
                Qt::UniqueConnection);
    connect(maLargeur, &QSlider::valueChanged, this, &PageTexteRiche::PriseLargeurChangee,
            Qt::UniqueConnection);
    connect(monErreur, &QCheckBox::toggled, this, &PageTexteRiche::PriseErreurChangee,
            Qt::UniqueConnection);
    connect(monRaccourci, &DLineEditRaccourci::SignalRaccourciEnregistray, this,
            &PageTexteRiche::PriseRaccourci, Qt::UniqueConnection);
}

void PageTexteRiche::PriseTexteChangay()
{
    mesJetons.removeRows(0, mesJetons.rowCount());
    for (JetonTexteRiche const & jeton : DonneJetons(monTexte->text()))
        mesJetons.appendRow(CreeRang({EnVisible(jeton.texte), jeton.effet}));

    auto const lu = RoutinesGeneralesQt::DonneTexteAvecFormat(monTexte->text(), font());
    mesFormats.removeRows(0, mesFormats.rowCount());
    for (QTextLayout::FormatRange const & format : lu.formats)
        mesFormats.appendRow(
            CreeRang({locale().toString(format.start), locale().toString(format.length),
                      EnUneLigne(QString(lu.texte).mid(format.start, format.length)),
                      DecrisFormat(format.format)}));
    for (DessinTexteRiche * const dessin : mesDessins)
        dessin->MetsTexte(monTexte->text(), maSource->text());
}

void PageTexteRiche::PriseLargeurChangee()
{
    int const largeur = maLargeur->value();
    maValeurLargeur->setText(
        TraductionGalerie(TexteGalerie("{1} px"), {UniChaine(locale().toString(largeur))}));
    for (DessinTexteRiche * const dessin : mesDessins)
        dessin->setFixedWidth(largeur);
    for (DLabelElision * const label : mesElisions)
        label->setFixedWidth(largeur);
}

void PageTexteRiche::PriseErreurChangee()
{
    monChampErreur->MetsErreur(monErreur->isChecked());
}

void PageTexteRiche::PriseRaccourci()
{
    monDernierRaccourci->setText(
        TraductionGalerie(TexteGalerie("Enregistré : {1}"), {UniChaine(monRaccourci->text())}));
}
