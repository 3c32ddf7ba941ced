// galerie/FenetreGalerie.cpp
#include "FenetreGalerie.h"

#include "Pages.h"
#include "TraductionGalerie.h"

#include "noyau/Traductions.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLibraryInfo>
#include <QListWidget>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
// Logical pixels.
constexpr QSize kTailleFenetre(1100, 760);
constexpr int kLargeurPanneau = 190;
constexpr int kMargePanneau = 10;
constexpr int kHauteurLigne = 40;
} // namespace

FenetreGalerie::FenetreGalerie(ThemeGalerie & theme)
    : monTheme(theme)
{
    auto * const centre = new QWidget;
    auto * const disposition = new QHBoxLayout(centre);
    disposition->setContentsMargins({});
    disposition->setSpacing(0);
    maPile = new QStackedWidget;
    disposition->addWidget(CreePanneau());
    disposition->addWidget(maPile, 1);
    setCentralWidget(centre);
    resize(kTailleFenetre);

    QCoreApplication::installTranslator(&monTraducteurQt);
    MetsLangue(Traductions::DonneLanguePourApplicationCourante());
    MontrePage(0);
    connect(maListe, &QListWidget::currentRowChanged, maPile, &QStackedWidget::setCurrentIndex,
            Qt::UniqueConnection);
    connect(monChoixLangue, &QComboBox::currentIndexChanged, this,
            &FenetreGalerie::PriseLangueChoisie, Qt::UniqueConnection);
}

QWidget * FenetreGalerie::CreePanneau()
{
    auto * const panneau = new QWidget;
    panneau->setFixedWidth(kLargeurPanneau);
    maListe = new QListWidget;
    maListe->setObjectName(u"listePages"_s);
    for (DescriptionPage const & page : DonnePages()) {
        auto * const element =
            new QListWidgetItem(QIcon(u":/images/"_s + page.nom + u".svg"_s), QString());
        element->setSizeHint(QSize(0, kHauteurLigne));
        maListe->addItem(element);
    }

    monChoixLangue = new QComboBox;
    // Each language under its own name, which the reader of another one need not know.
    monChoixLangue->addItem(u"Français"_s, kLangueFrancais);
    monChoixLangue->addItem(u"English"_s, kLangueAnglais);
    monChoixLangue->addItem(u"English (Canada)"_s, kLangueAnglaisCanada);
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
    monEtiquetteLangue->setText(TraductionGalerie(TexteGalerie("&Langue")));
    for (int i = 0; i < DonnePages().size(); ++i)
        maListe->item(i)->setText(TraductionGalerie(DonnePages().at(i).titre));
    monChoixLangue->setCurrentIndex(monChoixLangue->findData(langue));
    RefaisPages();
}

void FenetreGalerie::MontrePage(int indice)
{
    maListe->setCurrentRow(indice);
    maPile->setCurrentIndex(indice);
}

void FenetreGalerie::RefaisPages()
{
    int const courante = maPile->currentIndex();
    while (QWidget * const page = maPile->widget(0))
        delete page;
    for (DescriptionPage const & page : DonnePages())
        maPile->addWidget(page.cree(monTheme));
    maPile->setCurrentIndex(courante);
}

void FenetreGalerie::PriseLangueChoisie(int indice)
{
    auto const langue = static_cast<eLangue>(monChoixLangue->itemData(indice).toInt());
    if (langue != Traductions::DonneLanguePourApplicationCourante())
        MetsLangue(langue);
}
