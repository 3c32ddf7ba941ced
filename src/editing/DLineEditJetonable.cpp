// editing/DLineEditJetonable.cpp
#include "editing/DLineEditJetonable_p.h"

#include "editing/JetonableAccessible_p.h"

#include <QApplication>
#include <QEnterEvent>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyleOptionFrame>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int kMargeTexte = 2; // logical pixels, as a line edit leaves around its text
constexpr QRgb kCouleurJeton = qRgb(0, 112, 192); // of the text, without the focus
constexpr QPoint kHorsDuChamp(-1, -1);

// Alone they write nothing, and Shift+Tab, Alt+Down or the change to another window, which all
// begin with one of them, must not cost anyone the token.
bool EstModificateur(int touche)
{
    switch (touche) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
        return true;
    default:
        return false;
    }
}

QRect DonneBloc(QFontMetrics const & mesures, QString const & texte, QRect const & zone)
{
    QRect bloc = mesures.boundingRect(texte);
    bloc.moveTopLeft(zone.topLeft());
    // Room for a first letter that leans out of its cell.
    bloc.setRight(bloc.right() + std::max(0, -mesures.minLeftBearing()));
    bloc.moveTop(zone.top() + (zone.height() - bloc.height()) / 2);
    bloc.setRight(std::min(bloc.right(), zone.right())); // that room too stays in the field
    return bloc;
}

} // namespace

DLineEditJetonable::DLineEditJetonable(QWidget * parent)
    : QLineEdit(parent)
{
    JetonableAccessible::PrendsFabrique();
    connect(this, &QLineEdit::textEdited, this, &DLineEditJetonable::PriseTexteEditay,
            Qt::UniqueConnection);
    connect(this, &QLineEdit::textChanged, this, &DLineEditJetonable::PriseTexteChangay,
            Qt::UniqueConnection);
}

DLineEditJetonable::~DLineEditJetonable()
{
    JetonableAccessible::LibereFabrique();
}

void DLineEditJetonable::MetsJetonActif(bool actif)
{
    monJetonActif = actif;
    if (actif) {
        setCursor(Qt::ArrowCursor);
        QSignalBlocker const muet(this);
        clear();
    } else {
        setCursor(Qt::IBeamCursor);
        MetsInfobulle({});
    }
    update();
    JetonableAccessible::AnnonceValeur(*this);
    Q_EMIT SignalJetonChangay();
}

void DLineEditJetonable::PrendsTexteJeton(QString const & texte, QString const & infobulle)
{
    monTexteJeton = texte;
    MetsInfobulle(infobulle);
    MetsJetonActif(true);
}

void DLineEditJetonable::PrendsPoliceJeton(QFont const & police)
{
    maPoliceJeton = police;
    update();
}

bool DLineEditJetonable::UnJetonEstActif() const
{
    return monJetonActif;
}

QFont DLineEditJetonable::DonnePoliceJeton() const
{
    return maPoliceJeton.resolve(font());
}

QRect DLineEditJetonable::DonneBlocJeton() const
{
    return DonneBloc(QFontMetrics(DonnePoliceJeton()), DonneTexteAbregay(), DonneZoneTexte());
}

QString DLineEditJetonable::DonneTexteJeton() const
{
    return monJetonActif ? monTexteJeton : QString();
}

bool DLineEditJetonable::event(QEvent * evenement)
{
    bool const touche =
        evenement->type() == QEvent::KeyPress || evenement->type() == QEvent::ShortcutOverride;
    if (touche && static_cast<QKeyEvent const *>(evenement)->key() == Qt::Key_Escape)
        clear();
    return QLineEdit::event(evenement);
}

void DLineEditJetonable::keyPressEvent(QKeyEvent * evenement)
{
    // Deliberate: any key that comes here ends the token, an arrow or Ctrl+C too. Those with which
    // the focus leaves, and those of the combo box, do not come here.
    if (EstModificateur(evenement->key()) || TermineJeton())
        QLineEdit::keyPressEvent(evenement);
    else
        evenement->accept(); // whoever sent it looks at the field otherwise
}

void DLineEditJetonable::inputMethodEvent(QInputMethodEvent * evenement)
{
    // What is being composed would be typed unseen under the block.
    if (evenement->preeditString().isEmpty() || TermineJeton())
        QLineEdit::inputMethodEvent(evenement);
}

void DLineEditJetonable::focusInEvent(QFocusEvent * evenement)
{
    QLineEdit::focusInEvent(evenement);
    maSelectionEnAttente = true;
}

void DLineEditJetonable::enterEvent(QEnterEvent * evenement)
{
    MetsPositionSouris(evenement->position().toPoint());
    QLineEdit::enterEvent(evenement);
}

void DLineEditJetonable::leaveEvent(QEvent * evenement)
{
    MetsPositionSouris(kHorsDuChamp); // or the token would stay underlined
    QLineEdit::leaveEvent(evenement);
}

void DLineEditJetonable::mouseMoveEvent(QMouseEvent * evenement)
{
    MetsPositionSouris(evenement->position().toPoint());
    QLineEdit::mouseMoveEvent(evenement);
}

void DLineEditJetonable::mouseReleaseEvent(QMouseEvent * evenement)
{
    QPointer<DLineEditJetonable> const vivant(this);
    if (evenement->button() == Qt::LeftButton)
        Q_EMIT SignalRelachementGauche();
    if (!vivant)
        return;
    QLineEdit::mouseReleaseEvent(evenement);
    if (maSelectionEnAttente && !hasSelectedText())
        selectAll();
    maSelectionEnAttente = false;
}

void DLineEditJetonable::paintEvent(QPaintEvent * evenement)
{
    if (!monJetonActif) {
        QLineEdit::paintEvent(evenement);
        return;
    }
    // Of what the base paints in an empty field, only the panel: the placeholder would be read
    // beside the block, and the caret blink at its edges.
    QPainter peintre(this);
    QStyleOptionFrame option;
    initStyleOption(&option);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &peintre, this);
    DessineJeton(peintre);
}

void DLineEditJetonable::PriseTexteEditay()
{
    TermineJeton();
}

// The host and the list of the combo box change the text unedited. Under the block nobody would see
// it, and it would be the value of the field all the same.
void DLineEditJetonable::PriseTexteChangay()
{
    // Not what the signal tells: a receiver of `textEdited` may have made a token of that.
    if (!text().isEmpty())
        TermineJeton();
}

// False when a receiver has destroyed the field.
bool DLineEditJetonable::TermineJeton()
{
    QPointer<DLineEditJetonable> const vivant(this);
    if (monJetonActif)
        MetsJetonActif(false);
    return vivant;
}

void DLineEditJetonable::MetsInfobulle(QString const & infobulle)
{
    // One that is on the screen would go on to explain the token that was there.
    if (!toolTip().isEmpty() && QToolTip::text() == toolTip())
        QToolTip::hideText();
    setToolTip(infobulle);
}

void DLineEditJetonable::MetsPositionSouris(QPoint const & position)
{
    maPositionSouris = position;
    update();
}

QRect DLineEditJetonable::DonneZoneTexte() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    QRect const contenu =
        style()->subElementRect(QStyle::SE_LineEditContents, &option, this) - textMargins();
    return {contenu.left() + kMargeTexte, 0, contenu.width() - 2 * kMargeTexte, height()};
}

QString DLineEditJetonable::DonneTexteAbregay() const
{
    QFontMetrics const mesures(DonnePoliceJeton());
    return mesures.elidedText(monTexteJeton, Qt::ElideRight, DonneZoneTexte().width());
}

void DLineEditJetonable::DessineJeton(QPainter & peintre) const
{
    QFont police = DonnePoliceJeton();
    QString const texte = DonneTexteAbregay();
    QRect const bloc = DonneBlocJeton();
    bool const focus = hasFocus();
    peintre.fillRect(bloc, focus ? palette().highlight() : QApplication::palette().base());

    police.setUnderline(bloc.contains(maPositionSouris));
    peintre.setFont(police);
    peintre.setPen(focus ? palette().color(QPalette::HighlightedText) : QColor(kCouleurJeton));
    Qt::Alignment const alignement = QStyle::visualAlignment(layoutDirection(), alignment());
    peintre.drawText(bloc, static_cast<int>(alignement), texte);
}
