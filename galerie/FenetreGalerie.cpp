// galerie/FenetreGalerie.cpp
#include "FenetreGalerie.h"

#include "Langues.h"
#include "Pages.h"
#include "TraductionGalerie.h"

#include "controls/DBoutonAbstrait.h"
#include "noyau/Traductions.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLibraryInfo>
#include <QListWidget>
#include <QMetaProperty>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
// Logical pixels.
constexpr QSize kTailleFenetre(1100, 760);
constexpr int kLargeurPanneau = 190;
constexpr int kMargePanneau = 10;
constexpr int kHauteurLigne = 40;

// The style would tint the icon of the selected line: there it is drawn as it is.
QIcon CreeIcone(QString const & chemin)
{
    QIcon icone(chemin);
    icone.addFile(chemin, QSize(), QIcon::Selected);
    return icone;
}

// What the user gives `widget`: its text, its number, its check mark.
QMetaProperty DonneSaisie(QWidget const & widget)
{
    QMetaObject const & classe = *widget.metaObject();
    // Not the text of a choice, which is of one language.
    return qobject_cast<QComboBox const *>(&widget)
               ? classe.property(classe.indexOfProperty("currentIndex"))
               : classe.userProperty();
}

// Those of the page that have a name, but for the inner ones of Qt's widgets.
QList<QWidget *> DonneNommes(QWidget const & page)
{
    QList<QWidget *> nommes;
    for (QWidget * const widget : page.findChildren<QWidget *>())
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_") &&
            (qobject_cast<DBoutonAbstrait *>(widget) || DonneSaisie(*widget).isWritable()))
            nommes.append(widget);
    return nommes;
}

QVariant LisSaisie(QWidget const & widget)
{
    // Made of other widgets, it has no property of its own.
    if (auto const * const bouton = qobject_cast<DBoutonAbstrait const *>(&widget))
        return bouton->EstCochay();
    return DonneSaisie(widget).read(&widget);
}

void EcrisSaisie(QWidget & widget, QVariant const & saisie)
{
    if (auto * const bouton = qobject_cast<DBoutonAbstrait *>(&widget))
        bouton->MetsCochay(saisie.toBool());
    else
        DonneSaisie(widget).write(&widget, saisie);
}

QHash<QString, QVariantList> DonneSaisies(QWidget const & page)
{
    QHash<QString, QVariantList> saisies;
    for (QWidget const * const widget : DonneNommes(page))
        saisies[widget->objectName()].append(LisSaisie(*widget));
    return saisies;
}

// Widgets of one name, as the two fields of a search bar, take theirs in turn.
void RemetsSaisies(QWidget const & page, QHash<QString, QVariantList> saisies)
{
    for (QWidget * const widget : DonneNommes(page)) {
        auto const restantes = saisies.find(widget->objectName());
        if (restantes == saisies.end() || restantes->isEmpty())
            continue;
        QVariant const saisie = restantes->takeFirst();
        // Some tell of a value that is written even when it is the same.
        if (LisSaisie(*widget) != saisie)
            EcrisSaisie(*widget, saisie);
    }
}

} // namespace

FenetreGalerie::FenetreGalerie(ThemeGalerie & theme)
    : monTheme(theme)
{
    auto * const centre = new QWidget;
    auto * const disposition = new QHBoxLayout(centre);
    disposition->setContentsMargins({});
    disposition->setSpacing(0);
    maPile = new QStackedWidget;
    for (int i = 0; i < DonnePages().size(); ++i) {
        auto * const cadre = new QWidget;
        (new QVBoxLayout(cadre))->setContentsMargins({});
        maPile->addWidget(cadre);
    }
    mesPages.resize(DonnePages().size());
    disposition->addWidget(CreePanneau());
    disposition->addWidget(maPile, 1);
    setCentralWidget(centre);
    resize(kTailleFenetre);

    QCoreApplication::installTranslator(&monTraducteurQt);
    MetsLangue(Traductions::DonneLanguePourApplicationCourante());
    MontrePage(0);
    connect(maListe, &QListWidget::currentRowChanged, this, &FenetreGalerie::MontrePage,
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
            new QListWidgetItem(CreeIcone(u":/images/"_s + page.nom + u".svg"_s), QString());
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
    if (indice < 0 || indice >= mesPages.size())
        return;
    ConstruisPage(indice);
    maListe->setCurrentRow(indice);
    maPile->setCurrentIndex(indice);
}

void FenetreGalerie::RefaisPages()
{
    int const courante = maPile->currentIndex();
    for (Page & page : mesPages) {
        if (!page.widget)
            continue;
        page.saisies = DonneSaisies(*page.widget);
        delete page.widget;
    }
    ConstruisPage(courante);
    maPile->setCurrentIndex(courante);
}

// Most of what a page costs is its building: it is built when it is first shown.
void FenetreGalerie::ConstruisPage(int indice)
{
    Page & page = mesPages[indice];
    if (page.widget)
        return;
    page.widget = DonnePages().at(indice).cree(monTheme);
    auto * const cadre = maPile->widget(indice);
    cadre->layout()->addWidget(page.widget);
    RemetsSaisies(*page.widget, page.saisies);
}

void FenetreGalerie::PriseLangueChoisie(int indice)
{
    auto const langue = static_cast<eLangue>(monChoixLangue->itemData(indice).toInt());
    if (langue != Traductions::DonneLanguePourApplicationCourante())
        MetsLangue(langue);
}
