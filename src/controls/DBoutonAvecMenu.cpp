// controls/DBoutonAvecMenu.cpp
#include "controls/DBoutonAvecMenu_p.h"

#include "foundation/ThemesQt.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kLargeurMenu = 20;
constexpr int kRetraitSeparateur = 4; // from the top and the bottom
constexpr double kDemiLargeurChevron = 4.0;
constexpr double kHauteurChevron = 4.0;
constexpr double kEpaisseurChevron = 1.5;
constexpr int kRetraitMarque = 3; // inside the frames of the styles
constexpr int kEpaisseurMarque = 2;

bool EstToucheMenu(QKeyEvent const & evenement)
{
    auto const modificateurs = evenement.modifiers() & ~Qt::KeypadModifier;
    return (evenement.key() == Qt::Key_Down && modificateurs == Qt::AltModifier) ||
           (evenement.key() == Qt::Key_F4 && modificateurs == Qt::NoModifier);
}

} // namespace

DBoutonAvecMenu::DBoutonAvecMenu(QString const & texte, bool avecMenu, QWidget * parent)
    : QPushButton(texte, parent)
    , monAvecMenu(avecMenu)
    , monMenuAffichay(avecMenu)
{
}

void DBoutonAvecMenu::AfficheMenu(bool visible)
{
    if (!monAvecMenu || visible == monMenuAffichay)
        return;
    monMenuAffichay = visible;
    updateGeometry();
    update();
}

bool DBoutonAvecMenu::MenuEstAffichay() const
{
    return monMenuAffichay;
}

QRect DBoutonAvecMenu::DonneRectMenu() const
{
    if (!monMenuAffichay)
        return {};
    QRect const rectMenu(width() - kLargeurMenu, 0, kLargeurMenu, height());
    return QStyle::visualRect(layoutDirection(), rect(), rectMenu);
}

QSize DBoutonAvecMenu::sizeHint() const
{
    return QPushButton::sizeHint() + QSize(monMenuAffichay ? kLargeurMenu : 0, 0);
}

QSize DBoutonAvecMenu::minimumSizeHint() const
{
    return sizeHint();
}

bool DBoutonAvecMenu::hitButton(QPoint const & position) const
{
    return QPushButton::hitButton(position) && !DonneRectMenu().contains(position);
}

void DBoutonAvecMenu::mousePressEvent(QMouseEvent * evenement)
{
    bool const surMenu = DonneRectMenu().contains(evenement->position().toPoint());
    if (evenement->button() != Qt::LeftButton || !surMenu) {
        QPushButton::mousePressEvent(evenement);
        return;
    }
    evenement->accept();
    Q_EMIT menuCliquay(property(kProprieteIdentifiant));
}

void DBoutonAvecMenu::keyPressEvent(QKeyEvent * evenement)
{
    if (!monMenuAffichay || !EstToucheMenu(*evenement)) {
        QPushButton::keyPressEvent(evenement);
        return;
    }
    evenement->accept();
    if (!evenement->isAutoRepeat())
        Q_EMIT menuCliquay(property(kProprieteIdentifiant));
}

void DBoutonAvecMenu::paintEvent(QPaintEvent * evenement)
{
    if (monMenuAffichay)
        DessineAvecMenu();
    else
        QPushButton::paintEvent(evenement);
    // Styles tell a checked button by a shade, which in a dark palette nobody sees. Its colours are
    // left alone: a style or a style sheet may take one of them and not the other.
    if (isChecked() && isEnabled())
        DessineMarque();
}

void DBoutonAvecMenu::DessineAvecMenu()
{
    QStylePainter peintre(this);
    QStyleOptionButton fond;
    initStyleOption(&fond);
    QStyleOptionButton texte(fond);
    fond.text.clear();
    fond.icon = QIcon();
    peintre.drawControl(QStyle::CE_PushButton, fond);

    texte.rect = style()->subElementRect(QStyle::SE_PushButtonContents, &fond, this);
    if (isRightToLeft())
        texte.rect.setLeft(std::max(texte.rect.left(), kLargeurMenu));
    else
        texte.rect.setRight(std::min(texte.rect.right(), width() - kLargeurMenu - 1));
    peintre.drawControl(QStyle::CE_PushButtonLabel, texte);
    DessineMenu(peintre);
}

void DBoutonAvecMenu::DessineMenu(QPainter & peintre) const
{
    QRect const zone = DonneRectMenu();
    int const x = isRightToLeft() ? zone.right() : zone.left();
    QColor const separateur = ThemesQt::Instance()->DonneCouleur(u"couleurSeparateur"_s);
    if (separateur.isValid())
        peintre.fillRect(QRect(QPoint(x, zone.top() + kRetraitSeparateur),
                               QPoint(x, zone.bottom() - kRetraitSeparateur)),
                         separateur);

    QPointF const pointe = QRectF(zone).center() + QPointF(0, kHauteurChevron / 2);
    QPointF const chevron[] = {pointe + QPointF(-kDemiLargeurChevron, -kHauteurChevron), pointe,
                               pointe + QPointF(kDemiLargeurChevron, -kHauteurChevron)};
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(QPen(palette().buttonText(), kEpaisseurChevron, Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    peintre.drawPolyline(chevron, static_cast<int>(std::size(chevron)));
}

void DBoutonAvecMenu::DessineMarque()
{
    QRect trait = rect().adjusted(kRetraitMarque, 0, -kRetraitMarque, -kRetraitMarque);
    trait.setTop(trait.bottom() + 1 - kEpaisseurMarque);
    // The state has to be told as clearly in a window that is not the active one.
    QPainter(this).fillRect(trait, palette().brush(QPalette::Active, QPalette::Highlight));
}
