// galerie/PageTheme.cpp
#include "PageTheme.h"

#include "Pages.h"
#include "TexteCellule.h"
#include "ThemeGalerie.h"
#include "TraductionGalerie.h"

#include "foundation/ThemesQt.h"

#include <QColorDialog>
#include <QFontDatabase>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

enum eColonne
{
    kNom,
    kValeur,
    kApercu,
    kNombreColonnes
};

// Logical pixels.
constexpr QSize kTailleEchantillon(56, 16);
constexpr int kLargeurValeur = 260;
constexpr int kLargeurApercu = 90;
constexpr int kHauteurEssai = 150;

// Over black and white halves, so that a transparent colour shows as one.
QIcon DessineEchantillon(QColor const & couleur, qreal ratio)
{
    QPixmap image(kTailleEchantillon * ratio);
    image.setDevicePixelRatio(ratio);
    QRect const cadre(QPoint(0, 0), kTailleEchantillon);
    QPainter peintre(&image);
    peintre.fillRect(cadre, Qt::white);
    peintre.fillRect(cadre.adjusted(cadre.width() / 2, 0, 0, 0), Qt::black);
    peintre.fillRect(cadre, couleur);
    peintre.setPen(QColor(Qt::gray));
    peintre.drawRect(cadre.adjusted(0, 0, -1, -1));
    QIcon icone(image);
    icone.addPixmap(image, QIcon::Selected); // the style would tint it on the selected line
    return icone;
}

QStandardItem * CreeCellule(QString const & texte, bool modifiable)
{
    auto * const cellule = new QStandardItem(texte);
    cellule->setEditable(modifiable);
    return cellule;
}

} // namespace

PageTheme::PageTheme(ThemeGalerie & theme, QWidget * parent)
    : QWidget(parent)
    , monTheme(theme)
{
    auto * const disposition =
        CreeMiseEnPage(this, TraductionGalerie(TexteGalerie("Thème")),
                       TraductionGalerie(TexteGalerie(
                           "Les variables du thème. Une valeur se modifie sur place, une couleur "
                           "se choisit par le bouton « Choisir la couleur… » ou par un double clic "
                           "sur son aperçu ; toute la fenêtre suit.")));
    CreeTable();
    disposition->addLayout(CreeBarre());
    disposition->addWidget(maTable, 1);
    disposition->addWidget(new TexteCellule(maTable));
    disposition->addLayout(CreeEssai());
    MontreVariables();

    Branche();
    PriseFeuilleChangay();
}

void PageTheme::CreeTable()
{
    monModele.setColumnCount(kNombreColonnes);
    monModele.setHorizontalHeaderLabels({TraductionGalerie(TexteGalerie("Variable")),
                                         TraductionGalerie(TexteGalerie("Valeur")),
                                         TraductionGalerie(TexteGalerie("Aperçu"))});
    monFiltre.setSourceModel(&monModele);
    monFiltre.setFilterCaseSensitivity(Qt::CaseInsensitive);
    monFiltre.setFilterKeyColumn(kNom);
    monFiltre.setSortCaseSensitivity(Qt::CaseInsensitive);
    monFiltre.sort(kNom);
    maTable = new QTableView;
    maTable->setObjectName(u"tableVariables"_s);
    maTable->setAccessibleName(TraductionGalerie(TexteGalerie("Variables du thème")));
    maTable->setModel(&monFiltre);
    maTable->setIconSize(kTailleEchantillon);
    maTable->setSelectionMode(QAbstractItemView::SingleSelection);
    PrepareTable(*maTable);
    maTable->horizontalHeader()->setSectionResizeMode(kNom, QHeaderView::Stretch);
    maTable->setColumnWidth(kValeur, kLargeurValeur);
    maTable->setColumnWidth(kApercu, kLargeurApercu);
}

QLayout * PageTheme::CreeBarre()
{
    auto * const barre = new QHBoxLayout;
    monChampFiltre = new QLineEdit;
    monChampFiltre->setObjectName(u"filtreVariables"_s);
    monChampFiltre->setPlaceholderText(TraductionGalerie(TexteGalerie("Filtrer les variables")));
    monChampFiltre->setAccessibleName(monChampFiltre->placeholderText());
    monChampFiltre->setClearButtonEnabled(true);
    monCompte = new QLabel;
    monBoutonCouleur = new QPushButton(TraductionGalerie(TexteGalerie("&Choisir la couleur…")));
    monBoutonSombre = new QPushButton(TraductionGalerie(TexteGalerie("Thème &sombre")));
    monBoutonDepart = new QPushButton(TraductionGalerie(TexteGalerie("&Réinitialiser")));
    monBoutonCouleur->setObjectName(u"boutonCouleur"_s);
    monBoutonSombre->setObjectName(u"boutonSombre"_s);
    monBoutonDepart->setObjectName(u"boutonReinitialiser"_s);
    barre->addWidget(monChampFiltre, 1);
    for (QWidget * const widget :
         {static_cast<QWidget *>(monCompte), static_cast<QWidget *>(monBoutonCouleur),
          static_cast<QWidget *>(monBoutonSombre), static_cast<QWidget *>(monBoutonDepart)})
        barre->addWidget(widget);
    return barre;
}

QLayout * PageTheme::CreeEssai()
{
    maFeuille = new QPlainTextEdit(u"QPushButton {\n"
                                   "    color: @couleurTexteBoutonClicker;\n"
                                   "    background-color: @couleurFondBarreDictionnaireGuide;\n"
                                   "    border-radius: @rayonBordureBouton;\n"
                                   "    padding: 6px;\n"
                                   "}\n"_s);
    maFeuille->setObjectName(u"feuille"_s);
    maFeuille->setTabChangesFocus(true);
    maFeuille->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    monVerdict = new QLabel;
    monVerdict->setObjectName(u"messageErreur"_s);
    monVerdict->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    monVerdict->setWordWrap(true);

    monApercu = new QFrame;
    monApercu->setFrameShape(QFrame::StyledPanel);
    auto * const contenu = new QVBoxLayout(monApercu);
    contenu->addWidget(new QLabel(TraductionGalerie(TexteGalerie("Étiquette"))));
    auto * const champ = new QLineEdit(TraductionGalerie(TexteGalerie("Champ")));
    champ->setObjectName(u"champApercu"_s);
    contenu->addWidget(champ);
    contenu->addWidget(new QPushButton(TraductionGalerie(TexteGalerie("Bouton"))));
    contenu->addStretch();

    auto * const essai = new QHBoxLayout;
    essai->addWidget(maFeuille, 3);
    essai->addWidget(monApercu, 2);
    maFeuille->setFixedHeight(kHauteurEssai);
    monApercu->setFixedHeight(kHauteurEssai);
    auto * const entete = new QHBoxLayout;
    auto * const etiquette = new QLabel(TraductionGalerie(TexteGalerie("&Feuille de style")));
    etiquette->setBuddy(maFeuille);
    entete->addWidget(etiquette);
    entete->addWidget(monVerdict, 1);
    auto * const disposition = new QVBoxLayout;
    disposition->addLayout(entete);
    disposition->addLayout(essai);
    return disposition;
}

void PageTheme::Branche()
{
    connect(&monModele, &QStandardItemModel::itemChanged, this, &PageTheme::PriseValeurSaisie,
            Qt::UniqueConnection);
    connect(maTable, &QTableView::doubleClicked, this, &PageTheme::PriseActivation,
            Qt::UniqueConnection);
    connect(maTable->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &PageTheme::MontreChoixPossible, Qt::UniqueConnection);
    connect(monBoutonCouleur, &QPushButton::clicked, this, &PageTheme::PriseChoixCouleur,
            Qt::UniqueConnection);
    connect(maFeuille, &QPlainTextEdit::textChanged, this, &PageTheme::PriseFeuilleChangay,
            Qt::UniqueConnection);
    connect(monChampFiltre, &QLineEdit::textChanged, this, &PageTheme::PriseFiltreChangay,
            Qt::UniqueConnection);
    connect(monBoutonSombre, &QPushButton::clicked, this, &PageTheme::PriseThemeSombre,
            Qt::UniqueConnection);
    connect(monBoutonDepart, &QPushButton::clicked, this, &PageTheme::PriseReinitialisation,
            Qt::UniqueConnection);
}

void PageTheme::MontreVariables()
{
    if (monModele.rowCount() == 0)
        for (QString const & nom : ThemesQt::Instance()->DonneNoms())
            monModele.appendRow({CreeCellule(nom, false), CreeCellule(QString(), true),
                                 CreeCellule(QString(), false)});
    for (int ligne = 0; ligne < monModele.rowCount(); ++ligne)
        MontreLigne(ligne);
    MontreCompte();
    MontreChoixPossible();
}

void PageTheme::MontreLigne(int ligne)
{
    QString const nom = monModele.item(ligne, kNom)->text();
    QColor const couleur = ThemesQt::Instance()->DonneCouleur(nom);
    monModele.item(ligne, kValeur)->setText(monTheme.DonneValeur(nom));
    monModele.item(ligne, kApercu)
        ->setData(couleur.isValid()
                      ? QVariant(DessineEchantillon(couleur, maTable->devicePixelRatioF()))
                      : QVariant(),
                  Qt::DecorationRole);
}

void PageTheme::MontreCompte()
{
    monCompte->setText(TraductionPlurielGalerie(
        TextePlurielGalerie("{1} variable", "{1} variables"), monFiltre.rowCount()));
}

void PageTheme::MontreChoixPossible()
{
    // Without a current line, or on one that is no colour, there is none to choose.
    QModelIndex const apercu = maTable->currentIndex().siblingAtColumn(kApercu);
    monBoutonCouleur->setEnabled(!apercu.data(Qt::DecorationRole).isNull());
}

void PageTheme::AppliqueTheme()
{
    monTheme.Applique();
    MontreVariables();
    PriseFeuilleChangay();
}

void PageTheme::PriseFiltreChangay(QString const & filtre)
{
    monFiltre.setFilterFixedString(filtre);
    MontreCompte();
}

void PageTheme::PriseValeurSaisie(QStandardItem * element)
{
    QString const nom = monModele.item(element->row(), kNom)->text();
    // Also called for what MontreLigne writes, which is the value that the theme has.
    if (element->column() != kValeur || element->text() == monTheme.DonneValeur(nom))
        return;
    if (monTheme.Remplace(nom, element->text())) {
        AppliqueTheme();
        return;
    }
    MontreLigne(element->row());
    MontreVerdict(TraductionGalerie(
        TexteGalerie("Valeur refusée : elle nomme une variable inconnue, ou dépend d’elle-même.")));
}

void PageTheme::PriseChoixCouleur()
{
    QModelIndex const index = maTable->currentIndex();
    if (!index.isValid())
        return;
    QString const nom = index.siblingAtColumn(kNom).data().toString();
    QColor const couleur = QColorDialog::getColor(ThemesQt::Instance()->DonneCouleur(nom), this,
                                                  nom, QColorDialog::ShowAlphaChannel);
    if (!couleur.isValid())
        return;
    monTheme.Remplace(nom, couleur);
    AppliqueTheme();
}

void PageTheme::PriseActivation(QModelIndex const & index)
{
    if (index.column() == kApercu && !index.data(Qt::DecorationRole).isNull())
        PriseChoixCouleur();
}

void PageTheme::PriseThemeSombre()
{
    monTheme.Assombris();
    AppliqueTheme();
}

void PageTheme::PriseReinitialisation()
{
    monTheme.Reinitialise();
    AppliqueTheme();
}

void PageTheme::PriseFeuilleChangay()
{
    QString const feuille = maFeuille->toPlainText();
    // Asked first: AppliquerVariable doesn't return from a name that the table lacks.
    QStringList const inconnues = ThemesQt::Instance()->VariablesInconnues(feuille);
    if (inconnues.isEmpty())
        monApercu->setStyleSheet(ThemesQt::Instance()->AppliquerVariable(feuille));
    MontreVerdict(inconnues.isEmpty()
                      ? QString()
                      : TraductionGalerie(TexteGalerie("Feuille non appliquée. Inconnues : {1}"),
                                          {inconnues.join(u", "_s)}));
}

void PageTheme::MontreVerdict(QString const & refus)
{
    monVerdict->setText(refus);
}
