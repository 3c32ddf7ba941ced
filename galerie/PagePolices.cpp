// galerie/PagePolices.cpp
#include "PagePolices.h"

#include "Pages.h"
#include "TraductionGalerie.h"

#include "foundation/Polices.h"

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using RoutinesGeneralesQt::ModulateurFont;

namespace {

constexpr int kPointsEchantillons[] = {8, 9, 10, 12, 14, 18, 24};
constexpr int kPointsMin = 1;
constexpr int kPointsMax = 48;
constexpr int kPointsAuDepart = 12;
constexpr int kHauteurTexteAjustable = 80; // logical pixels: larger sizes must not push the page

QString EnPixels(int pixels)
{
    return TraductionGalerie(TexteGalerie("{1} px"), {UniChaine(QLocale().toString(pixels))});
}

} // namespace

PagePolices::PagePolices(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition =
        CreeMiseEnPage(this, TraductionGalerie(TexteGalerie("Polices")),
                       TraductionGalerie(TexteGalerie(
                           "Les tailles se choisissent en points et se posent en pixels, divisées "
                           "par le modulateur.")));
    auto * const bas = new QHBoxLayout;
    disposition->addWidget(CreeModulateur());
    disposition->addWidget(CreeEchantillons());
    bas->addWidget(CreeWidgetAjustable(), 1);
    bas->addWidget(CreeImage());
    disposition->addLayout(bas);
    disposition->addStretch();

    MontreEchantillons();
    PriseTailleChoisie(kPointsAuDepart);
    Branche();
}

QWidget * PagePolices::CreeModulateur()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Modulateur")));
    auto * const disposition = new QHBoxLayout(groupe);
    monModulateur = new QDoubleSpinBox;
    // Not named: the factor lives in the library, where it is not rounded to what is shown.
    monModulateur->setDecimals(4);
    monModulateur->setRange(0.1, 10.0);
    monModulateur->setSingleStep(0.25);
    monModulateur->setValue(ModulateurFont::Instance()->DonneModulateurEffectif());
    auto * const etiquette = new QLabel(TraductionGalerie(TexteGalerie("&Facteur")));
    etiquette->setBuddy(monModulateur);
    monBoutonCalcul = new QPushButton(TraductionGalerie(TexteGalerie("&Calculer selon l’écran")));
    monBoutonCalcul->setObjectName(u"boutonCalcul"_s);
    disposition->addWidget(etiquette);
    disposition->addWidget(monModulateur);
    disposition->addWidget(monBoutonCalcul);
    disposition->addStretch();
    return groupe;
}

QWidget * PagePolices::CreeEchantillons()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Échantillons")));
    auto * const grille = new QGridLayout(groupe);
    grille->setColumnStretch(2, 1);
    grille->setHorizontalSpacing(24); // logical pixels
    for (int const points : kPointsEchantillons) {
        int const ligne = grille->rowCount();
        auto * const taille = new QLabel(
            TraductionGalerie(TexteGalerie("{1} points"), {UniChaine(locale().toString(points))}));
        Echantillon const echantillon{
            points, new QLabel,
            new QLabel(TraductionGalerie(TexteGalerie("Voix ambiguë d’un cœur qui préfère")))};
        // Large texts are cut: they must not widen the window.
        echantillon.texte->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        grille->addWidget(taille, ligne, 0);
        grille->addWidget(echantillon.pixels, ligne, 1);
        grille->addWidget(echantillon.texte, ligne, 2);
        mesEchantillons.append(echantillon);
    }
    return groupe;
}

QWidget * PagePolices::CreeWidgetAjustable()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Police d’un widget")));
    auto * const disposition = new QVBoxLayout(groupe);
    auto * const commandes = new QHBoxLayout;
    monChoixTaille = new QSpinBox;
    monChoixTaille->setObjectName(u"points"_s);
    monChoixTaille->setRange(kPointsMin, kPointsMax);
    monChoixTaille->setValue(kPointsAuDepart);
    auto * const etiquette = new QLabel(TraductionGalerie(TexteGalerie("&Points")));
    etiquette->setBuddy(monChoixTaille);
    monBoutonMoins = new QPushButton(TraductionGalerie(TexteGalerie("Plus peti&t")));
    monBoutonPlus = new QPushButton(TraductionGalerie(TexteGalerie("Plus &grand")));
    monBoutonMoins->setObjectName(u"boutonMoins"_s);
    monBoutonPlus->setObjectName(u"boutonPlus"_s);
    for (QWidget * const widget :
         {static_cast<QWidget *>(etiquette), static_cast<QWidget *>(monChoixTaille),
          static_cast<QWidget *>(monBoutonMoins), static_cast<QWidget *>(monBoutonPlus)})
        commandes->addWidget(widget);
    commandes->addStretch();
    monWidgetAjustable = new QLabel(TraductionGalerie(TexteGalerie("Texte du widget")));
    monWidgetAjustable->setFixedHeight(kHauteurTexteAjustable);
    monWidgetAjustable->setObjectName(u"widgetAjustable"_s);
    maTaille = new QLabel;
    disposition->addLayout(commandes);
    disposition->addWidget(monWidgetAjustable);
    disposition->addWidget(maTaille);
    return groupe;
}

QWidget * PagePolices::CreeImage()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Image haute résolution")));
    auto * const disposition = new QVBoxLayout(groupe);
    // Beside it stands echantillon@2x.png, whose text says so.
    QPixmap const image = RoutinesGeneralesQt::DonnePixmapAvecDPI(u":/images/echantillon.png"_s);
    auto * const vue = new QLabel;
    vue->setPixmap(image);
    vue->setAlignment(Qt::AlignCenter);
    disposition->addWidget(vue, 1);
    disposition->addWidget(new QLabel(TraductionGalerie(
        TexteGalerie("{1} × {2} pixels, rapport {3}"),
        {UniChaine(locale().toString(image.width())), UniChaine(locale().toString(image.height())),
         UniChaine(locale().toString(image.devicePixelRatio()))})));
    return groupe;
}

void PagePolices::Branche()
{
    connect(monModulateur, &QDoubleSpinBox::valueChanged, this,
            &PagePolices::PriseModulateurChangay, Qt::UniqueConnection);
    connect(monBoutonCalcul, &QPushButton::clicked, this, &PagePolices::PriseModulateurCalculay,
            Qt::UniqueConnection);
    connect(monChoixTaille, &QSpinBox::valueChanged, this, &PagePolices::PriseTailleChoisie,
            Qt::UniqueConnection);
    connect(monBoutonMoins, &QPushButton::clicked, this, [this] { AjusteTaille(-1); });
    connect(monBoutonPlus, &QPushButton::clicked, this, [this] { AjusteTaille(1); });
}

void PagePolices::MontreEchantillons()
{
    ModulateurFont * const modulateur = ModulateurFont::Instance();
    for (Echantillon const & echantillon : mesEchantillons) {
        QFont const police = modulateur->DonneFontPointVersPixels(echantillon.points, font());
        echantillon.texte->setFont(police);
        echantillon.pixels->setText(EnPixels(police.pixelSize()));
    }
}

void PagePolices::AjusteTaille(int points)
{
    RoutinesGeneralesQt::AjusteTaillePoliceWidget(monWidgetAjustable, points);
    {
        // The font is at that size already, and would lose what rounding to whole points takes.
        QSignalBlocker const silence(monChoixTaille);
        monChoixTaille->setValue(qRound(
            ModulateurFont::Instance()->DonnePointSizeFDeFont(monWidgetAjustable->font(), true)));
    }
    MontreTaille();
}

void PagePolices::MontreTaille()
{
    ModulateurFont * const modulateur = ModulateurFont::Instance();
    QFont const police = monWidgetAjustable->font();
    maTaille->setText(TraductionGalerie(
        TexteGalerie("Obtenu : {1} points, {2} pixels ; sans le modulateur, {3} pixels"),
        {UniChaine(locale().toString(modulateur->DonnePointSizeFDeFont(police, true))),
         UniChaine(locale().toString(modulateur->DonnePixelSizeDeFont(police, true))),
         UniChaine(locale().toString(modulateur->DonnePixelSizeDeFontSansMod(police)))}));
    monBoutonMoins->setEnabled(monChoixTaille->value() > kPointsMin);
    monBoutonPlus->setEnabled(monChoixTaille->value() < kPointsMax);
}

void PagePolices::MontreModulateur()
{
    // The field rounds: what it shows must not become the factor.
    QSignalBlocker const silence(monModulateur);
    monModulateur->setValue(ModulateurFont::Instance()->DonneModulateurEffectif());
    MontreEchantillons();
    PriseTailleChoisie(monChoixTaille->value());
}

void PagePolices::PriseModulateurChangay(double valeur)
{
    ModulateurFont::Instance()->PrendsModulateur(valeur);
    MontreModulateur();
}

void PagePolices::PriseModulateurCalculay()
{
    if (!QGuiApplication::primaryScreen())
        return;                                         // nothing to compute it from
    ModulateurFont::Instance()->PrendsModulateur(-1.0); // asks the next Instance to compute it
    MontreModulateur();
}

void PagePolices::PriseTailleChoisie(int points)
{
    RoutinesGeneralesQt::MetsTaillePoliceWidget(monWidgetAjustable,
                                                static_cast<unsigned int>(points));
    MontreTaille();
}
