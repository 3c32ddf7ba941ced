// galerie/PageEcrans.cpp
#include "PageEcrans.h"

#include "Pages.h"
#include "PlacementEcrans.h"
#include "TraductionGalerie.h"
#include "VueEcrans.h"

#include "foundation/ThemesQt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// Desktop pixels.
constexpr QSize kTailleAuDepart(640, 480);
constexpr int kDebordement = 200; // of the rectangle at the start, out of its screen

constexpr int kOrdinateur = 0;      // index of the real screens, before those that are invented
constexpr int kBarreDesTaches = 40; // desktop pixels, at the bottom of an invented screen

struct Disposition
{
    ChaineLocalisable titre;
    QList<QRect> ecrans;
};

// For those who have one screen only.
QList<Disposition> const & DonneDispositions()
{
    static QList<Disposition> const dispositions = {
        {TexteGalerie("Deux écrans côte à côte"),
         {QRect(0, 0, 1920, 1080), QRect(1920, 0, 2560, 1440)}},
        {TexteGalerie("Un portable sous un grand écran"),
         {QRect(0, 0, 1366, 768), QRect(-600, -1440, 2560, 1440)}},
        {TexteGalerie("Deux écrans séparés par un vide"),
         {QRect(0, 0, 1280, 1024), QRect(1800, 300, 1280, 1024)}},
        {TexteGalerie("Un petit écran"), {QRect(0, 0, 1024, 800)}},
    };
    return dispositions;
}

QList<EcranDessinay> DonneEcrans(int disposition)
{
    QList<EcranDessinay> ecrans;
    if (disposition == kOrdinateur)
        for (QScreen const * const ecran : QGuiApplication::screens())
            ecrans.append({ecran->name(), ecran->geometry(), ecran->availableGeometry()});
    else
        for (QRect const & ecran : DonneDispositions().at(disposition - 1).ecrans)
            ecrans.append({QString(QChar(u'A' + static_cast<char16_t>(ecrans.size()))), ecran,
                           ecran.adjusted(0, 0, 0, -kBarreDesTaches)});
    return ecrans;
}

UniChaine EnChiffres(int nombre)
{
    return UniChaine(QLocale().toString(nombre));
}

QString EnRectangle(QRect const & rectangle)
{
    return TraductionGalerie(TexteGalerie("({1} ; {2}), {3}"),
                             {EnChiffres(rectangle.x()), EnChiffres(rectangle.y()),
                              UniChaine(EnTaille(rectangle.size()))});
}

QString EnEcran(PlacementEcrans const & placement)
{
    if (placement.ecran.isNull())
        return TraductionGalerie(TexteGalerie("Aucun écran"));
    return TraductionGalerie(
        TexteGalerie("{1}, {2}, {3}"),
        {UniChaine(placement.ecran), UniChaine(EnTaille(placement.resolution)),
         UniChaine(placement.basseResolution
                       ? TraductionGalerie(TexteGalerie("basse résolution"))
                       : TraductionGalerie(TexteGalerie("pleine résolution")))});
}

// A square in a colour of the theme, whichever that is when it is painted.
class Pastille : public QWidget
{
public:
    explicit Pastille(QString const & variable)
        : maVariable(variable)
    {
        constexpr int kCote = 10; // logical pixels
        setFixedSize(kCote, kCote);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter(this).fillRect(rect(), ThemesQt::Instance()->DonneCouleur(maVariable));
    }

private:
    QString maVariable;
};

// The colour of the outline that the caption speaks of.
QWidget * CreeLegende(QString const & texte, QString const & variable)
{
    auto * const legende = new QWidget;
    auto * const disposition = new QHBoxLayout(legende);
    disposition->setContentsMargins({});
    auto * const pastille = new Pastille(variable);
    pastille->setObjectName(variable);
    disposition->addWidget(pastille);
    disposition->addWidget(new QLabel(texte));
    return legende;
}

} // namespace

PageEcrans::PageEcrans(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition = CreeMiseEnPage(
        this, TraductionGalerie(TexteGalerie("Écrans")),
        TraductionGalerie(
            TexteGalerie("Les écrans à l’échelle. La souris ou les flèches déplacent le rectangle "
                         "bleu ; les contours montrent où la bibliothèque le placerait.")));
    maVue = new VueEcrans;
    maVue->setObjectName(u"vueEcrans"_s);
    maVue->setAccessibleName(TraductionGalerie(TexteGalerie("Écrans")));
    disposition->addLayout(CreeChoixDisposition());
    auto * const bas = new QHBoxLayout;
    bas->addWidget(CreeOptions());
    bas->addWidget(CreeResultats(), 1);
    disposition->addWidget(maVue, 1);
    disposition->addLayout(bas);

    PriseDispositionChangay();
    Branche();
}

QLayout * PageEcrans::CreeChoixDisposition()
{
    auto * const choix = new QHBoxLayout;
    maDisposition = new QComboBox;
    maDisposition->setObjectName(u"disposition"_s);
    maDisposition->addItem(TraductionGalerie(TexteGalerie("Les écrans de cet ordinateur")));
    for (Disposition const & invention : DonneDispositions())
        maDisposition->addItem(TraductionGalerie(invention.titre));
    auto * const etiquette = new QLabel(TraductionGalerie(TexteGalerie("&Disposition")));
    etiquette->setBuddy(maDisposition);
    choix->addWidget(etiquette);
    choix->addWidget(maDisposition);
    choix->addStretch();
    return choix;
}

QWidget * PageEcrans::CreeOptions()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Options")));
    auto * const formulaire = new QFormLayout(groupe);
    struct
    {
        QSpinBox *& champ;
        QString nom;
        ChaineLocalisable libelle;
        int valeur;
    } const champs[] = {
        {maLargeur, u"largeur"_s, TexteGalerie("L&argeur"), kTailleAuDepart.width()},
        {maHauteur, u"hauteur"_s, TexteGalerie("&Hauteur"), kTailleAuDepart.height()},
    };
    for (auto const & [champ, nom, libelle, valeur] : champs) {
        champ = new QSpinBox;
        champ->setObjectName(nom);
        champ->setRange(10, 9999);
        champ->setSingleStep(20);
        champ->setValue(valeur);
        formulaire->addRow(TraductionGalerie(libelle), champ);
    }
    struct
    {
        QCheckBox *& caseACocher;
        QString nom;
        ChaineLocalisable libelle;
    } const cases[] = {
        {maMarge, u"marge"_s, TexteGalerie("Garder une &marge")},
        {monForcage, u"forcage"_s, TexteGalerie("&Forcer le déplacement")},
        {monRedimensionnement, u"redimensionnement"_s, TexteGalerie("&Réduire ce qui dépasse")},
        {maPlaceHaute, u"placeHaute"_s, TexteGalerie("Centrer plus ha&ut")},
    };
    for (auto const & [caseACocher, nom, libelle] : cases) {
        caseACocher = new QCheckBox(TraductionGalerie(libelle));
        caseACocher->setObjectName(nom);
        formulaire->addRow(caseACocher);
    }
    monForcage->setChecked(true);
    return groupe;
}

QWidget * PageEcrans::CreeResultats()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Placement")));
    auto * const formulaire = new QFormLayout(groupe);
    for (QLabel ** const valeur :
         {&monEcran, &monAjustement, &monCentrage, &maHauteurMax, &maTailleOptimale})
        *valeur = new QLabel;
    monEcran->setObjectName(u"ecranLePlusProche"_s);
    formulaire->addRow(TraductionGalerie(TexteGalerie("Écran le plus proche")), monEcran);
    formulaire->addRow(CreeLegende(TraductionGalerie(TexteGalerie("Ajusté dans l’écran")),
                                   u"couleurAccentGuides"_s),
                       monAjustement);
    formulaire->addRow(
        CreeLegende(TraductionGalerie(TexteGalerie("Centré dans l’écran de la souris")),
                    u"couleurAccentDictionnaires"_s),
        monCentrage);
    formulaire->addRow(TraductionGalerie(TexteGalerie("Hauteur maximale")), maHauteurMax);
    formulaire->addRow(TraductionGalerie(TexteGalerie("Taille optimale")), maTailleOptimale);
    return groupe;
}

void PageEcrans::Branche()
{
    connect(maDisposition, &QComboBox::currentIndexChanged, this,
            &PageEcrans::PriseDispositionChangay, Qt::UniqueConnection);
    for (QSpinBox * const champ : {maLargeur, maHauteur})
        connect(champ, &QSpinBox::valueChanged, this, &PageEcrans::PriseTailleChangay,
                Qt::UniqueConnection);
    for (QCheckBox * const caseACocher : {maMarge, monForcage, monRedimensionnement, maPlaceHaute})
        connect(caseACocher, &QCheckBox::toggled, this, &PageEcrans::PlaceRectangle,
                Qt::UniqueConnection);
    connect(maVue, &VueEcrans::SignalRectangleDeplacay, this, &PageEcrans::PlaceRectangle,
            Qt::UniqueConnection);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &PageEcrans::PriseEcranAjoutay,
            Qt::UniqueConnection);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &PageEcrans::PriseEcransChangay,
            Qt::UniqueConnection);
    for (QScreen * const ecran : QGuiApplication::screens())
        BrancheEcran(ecran);
}

void PageEcrans::BrancheEcran(QScreen * ecran)
{
    connect(ecran, &QScreen::geometryChanged, this, &PageEcrans::PriseEcransChangay,
            Qt::UniqueConnection);
    connect(ecran, &QScreen::availableGeometryChanged, this, &PageEcrans::PriseEcransChangay,
            Qt::UniqueConnection);
}

void PageEcrans::PriseEcranAjoutay(QScreen * ecran)
{
    BrancheEcran(ecran);
    PriseEcransChangay();
}

void PageEcrans::PriseEcransChangay()
{
    maVue->MetsEcrans(DonneEcrans(maDisposition->currentIndex()));
    PlaceRectangle();
}

void PageEcrans::PriseDispositionChangay()
{
    QList<EcranDessinay> const ecrans = DonneEcrans(maDisposition->currentIndex());
    QRect const ecran = ecrans.isEmpty() ? QRect() : ecrans.first().disponible;
    // Out at the right edge, so that there is something to place.
    maVue->MetsRectangle(
        QRect(QPoint(ecran.right() - maLargeur->value() + kDebordement, ecran.center().y()),
              QSize(maLargeur->value(), maHauteur->value())));
    PriseEcransChangay();
}

void PageEcrans::PriseTailleChangay()
{
    maVue->MetsRectangle(
        QRect(maVue->DonneRectangle().topLeft(), QSize(maLargeur->value(), maHauteur->value())));
}

void PageEcrans::PlaceRectangle()
{
    int const disposition = maDisposition->currentIndex();
    QRect const rectangle = maVue->DonneRectangle();
    OptionsPlacement const options{maMarge->isChecked(), monForcage->isChecked(),
                                   monRedimensionnement->isChecked(), maPlaceHaute->isChecked()};
    PlacementEcrans const placement = disposition == kOrdinateur
                                          ? PlaceSurOrdinateur(rectangle, options)
                                          : PlaceSur(DonneEcrans(disposition), rectangle, options);
    maVue->MetsPlacements(placement.ajustay, placement.centray);
    monEcran->setText(EnEcran(placement));
    monAjustement->setText(EnRectangle(placement.ajustay));
    monCentrage->setText(EnRectangle(placement.centray));
    maHauteurMax->setText(EnChiffres(placement.hauteurMax));
    maTailleOptimale->setText(EnTaille(placement.tailleOptimale));
}
