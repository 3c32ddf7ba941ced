// controls/DToggleButton.cpp
#include "controls/DToggleButton.h"

#include "controls/GeometrieBascule_p.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPropertyAnimation>

#include <utility>

namespace {

constexpr int kDureeGlissement = 100; // ms
constexpr double kOpaciteDebordement = 0.5;
constexpr double kOpaciteDesactivay = 0.8;

// Logical pixels.
constexpr int kGonflement = 1; // of the thumb's radius, under the mouse
constexpr double kEpaisseurFocus = 2.0;

} // namespace

DToggleButton::DToggleButton(int trackRadius, int thumbRadius, QWidget * parent)
    : QAbstractButton(parent)
    , monRayonPiste(std::max(trackRadius, 0))
    , monRayonPouce(std::max(thumbRadius, 0))
    , monAnimation(new QPropertyAnimation(this, "mOffset", this))
{
    auto const geometrie = CalculeGeometrieBascule(monRayonPiste, monRayonPouce);
    maMarge = geometrie.marge;
    monCentreVertical = geometrie.taille.height() / 2;
    monOpacitePiste = PouceDeborde() ? kOpaciteDebordement : 1.0;
    mesFins = {{false, geometrie.finNonCochay}, {true, geometrie.finCochay}};
    mOffset = geometrie.finNonCochay;
    PrendsPinceaux();

    setCheckable(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    monAnimation->setDuration(kDureeGlissement);
    // The base calls no hook during a click. This one starts the slide before a host's slots run.
    connect(this, &QAbstractButton::toggled, this, &DToggleButton::PriseEtatChangay,
            Qt::UniqueConnection);
}

QSize DToggleButton::sizeHint() const
{
    return CalculeGeometrieBascule(monRayonPiste, monRayonPouce).taille;
}

int DToggleButton::offset() const
{
    return mOffset;
}

void DToggleButton::setOffset(int offset)
{
    mOffset = offset;
    update();
}

void DToggleButton::setChecked(bool checked)
{
    QPointer<DToggleButton> const garde(this);
    QAbstractButton::setChecked(checked);
    if (garde)
        Saute(); // within a click the base calls no hook
}

void DToggleButton::checkStateSet()
{
    QAbstractButton::checkStateSet();
    Saute();
}

void DToggleButton::nextCheckState()
{
    QPointer<DToggleButton> const garde(this);
    QAbstractButton::nextCheckState();
    // A receiver may have set the state back while signals were blocked, of which nobody tells.
    if (garde)
        PriseEtatChangay();
}

void DToggleButton::mouseReleaseEvent(QMouseEvent * evenement)
{
    QPointer<DToggleButton> const garde(this);
    monGlissementAttendu = evenement->button() == Qt::LeftButton;
    QAbstractButton::mouseReleaseEvent(evenement);
    if (garde)
        monGlissementAttendu = false;
}

void DToggleButton::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    if (isRightToLeft()) {
        peintre.translate(width(), 0);
        peintre.scale(-1.0, 1.0);
    }
    DessinePiste(peintre);
    DessinePouce(peintre);
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange))
        DessineFocus(peintre);
}

void DToggleButton::resizeEvent(QResizeEvent * evenement)
{
    QAbstractButton::resizeEvent(evenement);
    monCentreVertical = height() / 2;
    Saute();
}

void DToggleButton::enterEvent(QEnterEvent * evenement)
{
    monSurvol = true;
    update();
    QAbstractButton::enterEvent(evenement);
}

void DToggleButton::leaveEvent(QEvent * evenement)
{
    monSurvol = false;
    update();
    QAbstractButton::leaveEvent(evenement);
}

void DToggleButton::hideEvent(QHideEvent * evenement)
{
    monSurvol = false; // a window that goes away from under the mouse need not tell
    QAbstractButton::hideEvent(evenement);
}

void DToggleButton::changeEvent(QEvent * evenement)
{
    QAbstractButton::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange)
        PrendsPinceaux();
}

void DToggleButton::PriseEtatChangay()
{
    if (DonneBut() == mesFins.value(isChecked()))
        return;
    if (std::exchange(monGlissementAttendu, false))
        Glisse();
    else
        Saute();
}

bool DToggleButton::PouceDeborde() const
{
    return monRayonPouce > monRayonPiste;
}

void DToggleButton::PrendsPinceaux()
{
    // The state has to be told as clearly in a window that is not the active one.
    auto const pinceau = [this](QPalette::ColorRole role) {
        return palette().brush(QPalette::Active, role);
    };
    auto const pouceCochay = PouceDeborde() ? QPalette::Highlight : QPalette::HighlightedText;
    mesPinceaux = {{true, {pinceau(QPalette::Highlight), pinceau(pouceCochay)}},
                   {false, {pinceau(QPalette::Dark), pinceau(QPalette::Light)}}};
    update();
}

// Where the thumb stands or slides to.
int DToggleButton::DonneBut() const
{
    return monAnimation->state() == QAbstractAnimation::Running ? monAnimation->endValue().toInt()
                                                                : mOffset;
}

void DToggleButton::Glisse()
{
    monAnimation->stop();
    monAnimation->setStartValue(mOffset);
    monAnimation->setEndValue(mesFins.value(isChecked()));
    monAnimation->start();
}

void DToggleButton::Saute()
{
    monAnimation->stop();
    setOffset(mesFins.value(isChecked()));
}

void DToggleButton::DessinePiste(QPainter & peintre) const
{
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(isEnabled() ? mesPinceaux.value(isChecked()).piste : palette().shadow());
    peintre.setOpacity(isEnabled() ? monOpacitePiste : monOpacitePiste * kOpaciteDesactivay);
    peintre.drawRoundedRect(DonneRectPiste(), monRayonPiste, monRayonPiste);
}

void DToggleButton::DessinePouce(QPainter & peintre) const
{
    if (monRayonPouce == 0)
        return; // also under the mouse
    int const rayon = monSurvol ? monRayonPouce + kGonflement : monRayonPouce;
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(isEnabled() ? mesPinceaux.value(isChecked()).pouce : palette().mid());
    peintre.setOpacity(1.0);
    peintre.drawEllipse(QPointF(mOffset, monCentreVertical), rayon, rayon);
}

void DToggleButton::DessineFocus(QPainter & peintre) const
{
    if (monRayonPiste == 0)
        return;
    double const retrait = kEpaisseurFocus / 2; // the pen's middle
    double const rayon = monRayonPiste - retrait;
    peintre.setPen(QPen(palette().windowText(), kEpaisseurFocus));
    peintre.setBrush(Qt::NoBrush);
    peintre.drawRoundedRect(DonneRectPiste().adjusted(retrait, retrait, -retrait, -retrait), rayon,
                            rayon);
}

QRectF DToggleButton::DonneRectPiste() const
{
    QRect rect(QPoint(), CalculeGeometrieBascule(monRayonPiste, monRayonPouce).taille);
    rect.moveTop(monCentreVertical - rect.height() / 2);
    return rect.adjusted(maMarge, maMarge, -maMarge, -maMarge);
}
