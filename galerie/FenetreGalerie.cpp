// galerie/FenetreGalerie.cpp
#include "FenetreGalerie.h"

#include "Langues.h"
#include "OngletsGalerie.h"
#include "Pages.h"
#include "PagesOuvertes.h"
#include "TraductionGalerie.h"

#include "noyau/Traductions.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLibraryInfo>
#include <QListWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
// Logical pixels.
constexpr QSize kTailleFenetre(1100, 760);
constexpr int kLargeurPanneau = 190;
constexpr int kMargePanneau = 10;
constexpr int kHauteurLigne = 36;

} // namespace

FenetreGalerie::FenetreGalerie(ThemeGalerie & theme)
{
    auto * const centre = new QWidget;
    auto * const disposition = new QHBoxLayout(centre);
    disposition->setContentsMargins({});
    disposition->setSpacing(0);
    disposition->addWidget(CreePanneau());
    CreeOnglets(theme);
    disposition->addWidget(mesOnglets, 1);
    setCentralWidget(centre);
    resize(kTailleFenetre);
    Branche();

    QCoreApplication::installTranslator(&monTraducteurQt);
    MetsLangue(Traductions::DonneLanguePourApplicationCourante());
    MontrePage(0);
}

FenetreGalerie::~FenetreGalerie() = default;

QWidget * FenetreGalerie::CreePanneau()
{
    auto * const panneau = new QWidget;
    panneau->setFixedWidth(kLargeurPanneau);
    maListe = new QListWidget;
    maListe->setObjectName(u"listePages"_s);
    maListe->installEventFilter(this);
    for (DescriptionPage const & page : DonnePages()) {
        auto * const element = new QListWidgetItem(CreeIconePage(page), QString());
        element->setSizeHint(QSize(0, kHauteurLigne));
        maListe->addItem(element);
    }

    monChoixLangue = new QComboBox;
    monChoixLangue->setObjectName(u"choixLangue"_s);
    for (DescriptionLangue const & langue : DonneLangues())
        monChoixLangue->addItem(langue.nom, langue.langue);
    monEtiquetteLangue = new QLabel;
    monEtiquetteLangue->setBuddy(monChoixLangue);

    auto * const langue = new QVBoxLayout;
    langue->setContentsMargins(kMargePanneau, kMargePanneau, kMargePanneau, kMargePanneau);
    langue->addWidget(monEtiquetteLangue);
    langue->addWidget(monChoixLangue);
    auto * const disposition = new QVBoxLayout(panneau);
    disposition->setContentsMargins({});
    disposition->setSpacing(0);
    disposition->addWidget(maListe, 1);
    disposition->addLayout(langue);
    return panneau;
}

void FenetreGalerie::CreeOnglets(ThemeGalerie & theme)
{
    mesOnglets = new OngletsGalerie;
    maPhrase = new QLabel;
    maPhrase->setObjectName(u"phraseSansPage"_s);
    maPhrase->setAlignment(Qt::AlignCenter);
    maPhrase->setWordWrap(true);
    mesOnglets->AjouteWidgetCommun(maPhrase);
    // All the room is its own: without it the pages would take half, even where there is none.
    static_cast<QBoxLayout *>(mesOnglets->layout())->setStretchFactor(maPhrase, 1);
    mesPages = std::make_unique<PagesOuvertes>(theme, *mesOnglets);
}

void FenetreGalerie::Branche()
{
    // The arrows only move through the list: a tab for each page on the way would be too many.
    connect(maListe, &QListWidget::itemClicked, this, &FenetreGalerie::PrisePageChoisie,
            Qt::UniqueConnection);
    connect(maListe, &QListWidget::itemActivated, this, &FenetreGalerie::PrisePageChoisie,
            Qt::UniqueConnection);
    connect(monChoixLangue, &QComboBox::currentIndexChanged, this,
            &FenetreGalerie::PriseLangueChoisie, Qt::UniqueConnection);
    connect(mesPages.get(), &PagesOuvertes::SignalPageMontray, this, &FenetreGalerie::MarquePage,
            Qt::UniqueConnection);
    connect(mesPages.get(), &PagesOuvertes::SignalPrincipauxChangays, maPhrase, &QLabel::setVisible,
            Qt::UniqueConnection);
}

void FenetreGalerie::MetsLangue(eLangue langue)
{
    Traductions::MetsLanguePourApplicationCourante(langue);
    QLocale const locale = Traductions::DonneLocalePourApplicationCourante().DonneQLocale();
    // For the numbers of the widgets: the pages take the window's locale, or the default while they
    // are being built.
    QLocale::setDefault(locale);
    setLocale(locale);
    // Without the file, or for the language that Qt is written in, its texts stay as they are.
    static_cast<void>(monTraducteurQt.load(locale, u"qtbase"_s, u"_"_s,
                                           QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
    setWindowTitle(TraductionGalerie(TexteGalerie("Galerie de libFabrelGui")));
    maListe->setAccessibleName(TraductionGalerie(TexteGalerie("Pages")));
    maPhrase->setText(TraductionGalerie(
        TexteGalerie("Aucune page n’est ouverte ici. Choisissez-en une dans la liste.")));
    monEtiquetteLangue->setText(TraductionGalerie(TexteGalerie("&Langue")));
    for (int i = 0; i < DonnePages().size(); ++i)
        maListe->item(i)->setText(TraductionGalerie(DonnePages().at(i).titre));
    monChoixLangue->setCurrentIndex(monChoixLangue->findData(langue));
    RefaisPages();
}

void FenetreGalerie::MontrePage(int indice)
{
    mesPages->Montre(indice);
}

void FenetreGalerie::MontreSeule(int indice)
{
    mesPages->MontreSeule(indice);
}

void FenetreGalerie::RefaisPages()
{
    mesPages->Refais();
    mesPages->Habille();
}

void FenetreGalerie::closeEvent(QCloseEvent * evenement)
{
    // Without it no window is left from which a page could be chosen.
    mesPages->RameneTout();
    evenement->accept();
}

bool FenetreGalerie::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet == maListe && evenement->type() == QEvent::FocusOut)
        MarquePage(maPage);
    return QMainWindow::eventFilter(objet, evenement);
}

void FenetreGalerie::MarquePage(int page)
{
    maPage = page;
    maListe->setCurrentRow(page);
}

void FenetreGalerie::PrisePageChoisie(QListWidgetItem * element)
{
    MontrePage(maListe->row(element));
}

void FenetreGalerie::PriseLangueChoisie(int indice)
{
    auto const langue = static_cast<eLangue>(monChoixLangue->itemData(indice).toInt());
    if (langue != Traductions::DonneLanguePourApplicationCourante())
        MetsLangue(langue);
}
