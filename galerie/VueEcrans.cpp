// galerie/VueEcrans.cpp
#include "VueEcrans.h"

#include "TraductionGalerie.h"

#include "foundation/ThemesQt.h"

#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double kPartBordure = 0.1; // of the desktop's size, around it: room to drag out of sight
constexpr int kPas = 20;             // desktop pixels for an arrow key
constexpr int kEpaisseur = 2;        // logical pixels
constexpr int kEcartTexte = 6;       // logical pixels

QColor Couleur(QString const & nom)
{
    return ThemesQt::Instance()->DonneCouleur(nom);
}

// From the desktop to the widget: the whole of `bureau`, centred, in its proportions.
QTransform CalculeEchelle(QRectF const & bureau, QSizeF const & taille)
{
    double const echelle =
        std::min(taille.width() / bureau.width(), taille.height() / bureau.height());
    return QTransform::fromTranslate(-bureau.center().x(), -bureau.center().y()) *
           QTransform::fromScale(echelle, echelle) *
           QTransform::fromTranslate(taille.width() / 2, taille.height() / 2);
}

void DessineCadre(QPainter & peintre, QRectF const & rectangle, QString const & couleur,
                  Qt::PenStyle trait)
{
    peintre.setBrush(Qt::NoBrush);
    peintre.setPen(QPen(Couleur(couleur), kEpaisseur, trait));
    peintre.drawRect(rectangle);
}

} // namespace

QString EnTaille(QSize const & taille)
{
    QLocale const locale; // the default one, which follows the language
    return TraductionGalerie(
        TexteGalerie("{1} × {2}"),
        {UniChaine(locale.toString(taille.width())), UniChaine(locale.toString(taille.height()))});
}

VueEcrans::VueEcrans(QWidget * parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void VueEcrans::MetsEcrans(QList<EcranDessinay> const & ecrans)
{
    mesEcrans = ecrans;
    update();
}

void VueEcrans::MetsRectangle(QRect const & rectangle)
{
    if (rectangle == monRectangle)
        return;
    monRectangle = rectangle;
    update();
    Q_EMIT SignalRectangleDeplacay();
}

void VueEcrans::MetsPlacements(QRect const & ajustay, QRect const & centray)
{
    monAjustement = ajustay;
    monCentrage = centray;
    update();
}

QSize VueEcrans::sizeHint() const
{
    return {640, 360};
}

QSize VueEcrans::minimumSizeHint() const
{
    return {240, 160};
}

void VueEcrans::paintEvent(QPaintEvent *)
{
    QTransform const echelle = DonneEchelle();
    QPainter peintre(this);
    for (EcranDessinay const & ecran : mesEcrans)
        DessineEcran(peintre, echelle.mapRect(QRectF(ecran.geometrie)),
                     echelle.mapRect(QRectF(ecran.disponible)));
    peintre.setPen(QPen(Couleur(u"couleurBordureQTreeView"_s), kEpaisseur));
    peintre.setBrush(Couleur(u"couleurFondQTreeView"_s));
    peintre.drawRect(echelle.mapRect(QRectF(monRectangle)));
    DessineCadre(peintre, echelle.mapRect(QRectF(monCentrage)), u"couleurAccentDictionnaires"_s,
                 Qt::DashLine);
    DessineCadre(peintre, echelle.mapRect(QRectF(monAjustement)), u"couleurAccentGuides"_s,
                 Qt::SolidLine);
    // Last: an outline may pass where a name stands.
    for (EcranDessinay const & ecran : mesEcrans)
        DessineNom(peintre, echelle.mapRect(QRectF(ecran.geometrie)), ecran);
    if (hasFocus())
        DessineCadre(peintre, QRectF(rect()).adjusted(1, 1, -1, -1), u"couleurAccentSysteme"_s,
                     Qt::DotLine);
}

void VueEcrans::mousePressEvent(QMouseEvent * evenement)
{
    QPoint const point = DonneEchelle().inverted().map(evenement->position()).toPoint();
    monDeplacement = evenement->button() == Qt::LeftButton && monRectangle.contains(point);
    maPrise = point - monRectangle.topLeft();
    if (!monDeplacement)
        QWidget::mousePressEvent(evenement);
}

void VueEcrans::mouseMoveEvent(QMouseEvent * evenement)
{
    if (monDeplacement)
        Deplace(DonneEchelle().inverted().map(evenement->position()).toPoint() - maPrise);
}

void VueEcrans::mouseReleaseEvent(QMouseEvent *)
{
    monDeplacement = false;
}

void VueEcrans::keyPressEvent(QKeyEvent * evenement)
{
    QPoint pas;
    switch (evenement->key()) {
    case Qt::Key_Left:
        pas.setX(-kPas);
        break;
    case Qt::Key_Right:
        pas.setX(kPas);
        break;
    case Qt::Key_Up:
        pas.setY(-kPas);
        break;
    case Qt::Key_Down:
        pas.setY(kPas);
        break;
    default:
        QWidget::keyPressEvent(evenement);
        return;
    }
    Deplace(monRectangle.topLeft() + pas);
}

QTransform VueEcrans::DonneEchelle() const
{
    QRect bureau;
    for (EcranDessinay const & ecran : mesEcrans)
        bureau |= ecran.geometrie;
    if (bureau.isEmpty()) // a desktop of no screen has no scale
        return {};
    QSizeF const bordure = QSizeF(bureau.size()) * kPartBordure;
    return CalculeEchelle(QRectF(bureau).adjusted(-bordure.width(), -bordure.height(),
                                                  bordure.width(), bordure.height()),
                          size());
}

void VueEcrans::DessineEcran(QPainter & peintre, QRectF const & cadre,
                             QRectF const & disponible) const
{
    // What stays visible of the first layer is taken by task bars.
    peintre.fillRect(cadre, Couleur(u"couleurSeparateur"_s));
    peintre.fillRect(disponible, Couleur(u"couleurFondBlanc"_s));
    DessineCadre(peintre, cadre, u"couleurBordureGeneral"_s, Qt::SolidLine);
}

void VueEcrans::DessineNom(QPainter & peintre, QRectF const & cadre,
                           EcranDessinay const & ecran) const
{
    QString const texte = ecran.nom + u'\n' + EnTaille(ecran.geometrie.size());
    QRectF const place = cadre.adjusted(kEcartTexte, kEcartTexte, -kEcartTexte, -kEcartTexte);
    constexpr int kCoin = Qt::AlignLeft | Qt::AlignTop;
    peintre.fillRect(peintre.boundingRect(place, kCoin, texte) & place,
                     Couleur(u"couleurFondBlanc"_s));
    peintre.setPen(Couleur(u"couleurTexteFoncee"_s));
    peintre.drawText(place, kCoin, texte);
}

void VueEcrans::Deplace(QPoint const & coin)
{
    MetsRectangle(QRect(coin, monRectangle.size()));
}
