// editing/DComboJetonable.cpp
#include "editing/DComboJetonable.h"

#include "editing/DLineEditJetonable_p.h"
#include "foundation/TexteRiche.h"
#include "style/DStyleProxy.h"

#include <QAbstractItemView>
#include <QMouseEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kLargeurMaxChamp = 175; // with icons
constexpr int kMargeIcone = 3;        // from the right edge
constexpr int kDecalageDessin = 5;    // of the drawn icon, to the left of the clicked one
constexpr QPoint kHorsDuCombo(-1, -1);

constexpr QRgb kFondSurvol = qRgb(230, 230, 230);

// Null for a file that is not there or is no picture: QIcon would have it, and draw nothing.
QIcon ChargeIcone(QString const & chemin)
{
    constexpr int kTailleEssay = 16; // any size that icons have
    QIcon icone(chemin);
    return icone.pixmap(kTailleEssay).isNull() ? QIcon() : icone;
}

} // namespace

// NOLINTBEGIN(performance-unnecessary-value-param): by value is the interface

DComboJetonable::DComboJetonable(QWidget * parent, bool withIcons, UniChaine normal,
                                 UniChaine normalHover, UniChaine deletion, UniChaine deletionHover)
    : DComboBox(parent)
    , monAvecIcones(withIcons)
{
    setMouseTracking(true);
    setEditable(true);
    monChamp = new DLineEditJetonable(this);
    monChamp->setMouseTracking(true);
    setLineEdit(monChamp);
    if (monAvecIcones) {
        PrendsCheminIconeNormale(normal);
        PrendsCheminIconeNormaleHover(normalHover);
        PrendsCheminIconeSupprime(deletion);
        PrendsCheminIconeSupprimeHover(deletionHover);
        // The library's style then keeps the line beside the arrow from crossing the icon.
        setProperty(DStyleProxy::DonneNomAttributStyleComboBoxSansFleche(), true);
        monChamp->setMaximumWidth(kLargeurMaxChamp);
    }
    ChangeTonIcone(true);
    Branche();
}

void DComboJetonable::Branche()
{
    connect(monChamp, &QLineEdit::textChanged, this, &DComboJetonable::PriseDoitChangeeIcone,
            Qt::UniqueConnection);
    connect(monChamp, &DLineEditJetonable::SignalJetonChangay, this,
            &DComboJetonable::PriseDoitChangeeIcone, Qt::UniqueConnection);
    connect(monChamp, &DLineEditJetonable::SignalJetonChangay, this,
            &DComboJetonable::SignalJetonChangay, Qt::UniqueConnection);
    connect(monChamp, &DLineEditJetonable::SignalRelachementGauche, this,
            &DComboJetonable::SignalShowPopup, Qt::UniqueConnection);
    // Later: the view has the size before the combo box.
    connect(view(), &QAbstractItemView::iconSizeChanged, this, &DComboJetonable::PriseTailleIcone,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
    installEventFilter(this);
    monChamp->installEventFilter(this);
}

void DComboJetonable::PrendsTexteJeton(UniChaine text, UniChaine tooltip)
{
    text.Remplace(UniChaine(u"\n"), UniChaine(u" "));
    text.ConsolideBlancs();
    // No tool tip rather than an empty one.
    UniChaine const infobulle = RoutinesGeneralesQt::DonneTexteRichePourInfobulle(tooltip, true);
    if (monChamp)
        monChamp->PrendsTexteJeton(text, infobulle);
}

void DComboJetonable::PrendsTextePlaceHolder(UniChaine texte)
{
    if (monChamp)
        monChamp->setPlaceholderText(texte);
}

void DComboJetonable::PrendsPoliceJeton(QFont police)
{
    if (monChamp)
        monChamp->PrendsPoliceJeton(police);
}

void DComboJetonable::PrendsCheminIconeNormale(UniChaine chemin)
{
    monIconeNormale = ChargeIcone(chemin);
    update();
}

void DComboJetonable::PrendsCheminIconeNormaleHover(UniChaine chemin)
{
    monIconeNormaleHover = ChargeIcone(chemin);
    update();
}

void DComboJetonable::PrendsCheminIconeSupprime(UniChaine chemin)
{
    monIconeSupprime = ChargeIcone(chemin);
    update();
}

void DComboJetonable::PrendsCheminIconeSupprimeHover(UniChaine chemin)
{
    monIconeSupprimeHover = ChargeIcone(chemin);
    update();
}

// NOLINTEND(performance-unnecessary-value-param)

void DComboJetonable::DesactiveJeton()
{
    if (monChamp)
        monChamp->MetsJetonActif(false);
}

void DComboJetonable::DesactiveSuppression()
{
    maSuppressionPermise = false;
    ChangeTonIcone(true);
}

bool DComboJetonable::UnJetonEstActif()
{
    return monChamp && monChamp->UnJetonEstActif();
}

void DComboJetonable::ChangeTonIcone(bool normale)
{
    monEtatNormal = normale || !maSuppressionPermise;
    update();
}

QRect DComboJetonable::DonneRectIcone()
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    QSize const taille = option.iconSize;
    int const y = static_cast<int>(std::ceil((height() - taille.height()) * 0.5));
    return {QPoint(width() - kMargeIcone - taille.width(), y), taille};
}

bool DComboJetonable::PosEstDansRectIcone(QPoint position)
{
    if (monAvecIcones)
        return DonneRectIcone().contains(position);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->hitTestComplexControl(QStyle::CC_ComboBox, &option, position, this) ==
           QStyle::SC_ComboBoxArrow;
}

void DComboJetonable::showPopup()
{
    hidePopup();
    Q_EMIT SignalShowPopup();
}

bool DComboJetonable::eventFilter(QObject * objet, QEvent * evenement)
{
    QEvent::Type const type = evenement->type();
    // The field is looked at with these events only: it sends others while it is being destroyed.
    if (type == QEvent::MouseMove) {
        bool const duChamp = objet == monChamp;
        QPoint const position = static_cast<QMouseEvent *>(evenement)->position().toPoint();
        // The field begins elsewhere than the combo box.
        if (duChamp || objet == this)
            MetsPositionSouris(duChamp ? monChamp->mapTo(this, position) : position);
    } else if ((type == QEvent::Move || type == QEvent::Resize) && objet == monChamp) {
        DegageIcone();
    }
    return DComboBox::eventFilter(objet, evenement);
}

void DComboJetonable::PriseDoitChangeeIcone()
{
    ChangeTonIcone(EstVide());
}

void DComboJetonable::wheelEvent(QWheelEvent * evenement)
{
    evenement->ignore(); // what is around scrolls
}

// The base would open the list as soon as the button goes down on the arrow: the pop-up of the host
// would then take the release away from the icon, or be asked for twice.
void DComboJetonable::mousePressEvent(QMouseEvent * evenement)
{
    evenement->setAccepted(evenement->button() == Qt::LeftButton &&
                           PosEstDansRectIcone(evenement->position().toPoint()));
}

void DComboJetonable::mouseReleaseEvent(QMouseEvent * evenement)
{
    if (evenement->button() != Qt::LeftButton) {
        evenement->ignore();
        return;
    }
    QPointer<DComboJetonable> const vivant(this);
    if (PosEstDansRectIcone(evenement->position().toPoint()) && ActiveIcone()) {
        evenement->accept();
        return;
    }
    if (!vivant)
        return;
    showPopup();
    if (vivant)
        DComboBox::mouseReleaseEvent(evenement);
}

void DComboJetonable::leaveEvent(QEvent * evenement)
{
    MetsPositionSouris(kHorsDuCombo);
    DComboBox::leaveEvent(evenement);
}

void DComboJetonable::paintEvent(QPaintEvent * evenement)
{
    if (!monAvecIcones) {
        DComboBox::paintEvent(evenement);
        return;
    }
    QStylePainter peintre(this);
    peintre.setRenderHint(QPainter::SmoothPixmapTransform);
    peintre.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.subControls &= ~QStyle::SC_ComboBoxArrow;
    // Styles keep their pictures of combo boxes under a key in which this is and the above is not.
    option.activeSubControls |= QStyle::SC_ComboBoxListBoxPopup;
    peintre.drawComplexControl(QStyle::CC_ComboBox, option);
    peintre.drawControl(QStyle::CE_ComboBoxLabel, option);
    DessineIcone(peintre);
}

// The base may give the field the geometry that it has, of which the field does not hear, while the
// icon has come nearer.
void DComboJetonable::resizeEvent(QResizeEvent * evenement)
{
    DComboBox::resizeEvent(evenement);
    if (monChamp)
        DegageIcone();
}

// The base lays the field out only when its own size changes.
void DComboJetonable::PriseTailleIcone()
{
    QResizeEvent evenement(size(), size());
    resizeEvent(&evenement);
}

void DComboJetonable::MetsPositionSouris(QPoint const & position)
{
    maPositionSouris = position;
    update();
}

bool DComboJetonable::EstVide()
{
    return currentText().isEmpty() && !UnJetonEstActif();
}

// What a click on the icon or the arrow does. True when nothing is left to do: the field held
// something, or a receiver has destroyed the combo box.
bool DComboJetonable::ActiveIcone()
{
    QPointer<DComboJetonable> const vivant(this);
    Q_EMIT SignalBoutonXAppuyay();
    if (!vivant)
        return true;
    if (EstVide())
        return false;
    // Deliberate: without icons, the arrow empties the field too.
    if (maSuppressionPermise) {
        clearEditText();
        if (vivant)
            DesactiveJeton();
    }
    if (vivant)
        Q_EMIT SignalShowPopup();
    return true;
}

// In a narrow combo box, from right to left, and with a style that leaves no room for an arrow, the
// field would lie over the icon, hide it and take its clicks.
void DComboJetonable::DegageIcone()
{
    QRect const place = monChamp->geometry();
    int const bord = DonneRectIcone().left() - kDecalageDessin; // where the icon begins
    if (!monAvecIcones || place.right() < bord)
        return;
    // From right to left the room for the arrow is at the left, and free but for the frame.
    bool const versLaDroite = layoutDirection() == Qt::LeftToRight;
    int const gauche =
        versLaDroite ? place.left() : std::min(place.left(), width() - 1 - place.right());
    monChamp->setGeometry(gauche, place.top(), bord - gauche, place.height());
}

void DComboJetonable::DessineIcone(QPainter & peintre)
{
    QRect const rect = DonneRectIcone();
    QRect const dessin(QPoint(0, 0), rect.size());
    bool const survol = rect.contains(maPositionSouris);
    QIcon const & normale = monEtatNormal ? monIconeNormale : monIconeSupprime;
    QIcon const & hover = monEtatNormal ? monIconeNormaleHover : monIconeSupprimeHover;
    QIcon const & icone = survol && !hover.isNull() ? hover : normale;

    peintre.translate(rect.left() - kDecalageDessin, rect.top());
    if (survol && !monEtatNormal)
        peintre.fillRect(dessin, QColor(kFondSurvol));
    QIcon::Mode const mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
    peintre.drawPixmap(dessin, icone.pixmap(dessin.size(), devicePixelRatioF(), mode));
}
