// controls/DBoutonAvecMenu.cpp
#include "controls/DBoutonAvecMenu_p.h"

#include "foundation/ThemesQt.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kLargeurMenu = 20;
constexpr int kRetraitSeparateur = 4; // from the top and the bottom
constexpr double kDemiLargeurChevron = 4.0;
constexpr double kHauteurChevron = 4.0;
constexpr double kEpaisseurChevron = 1.5;

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

void DBoutonAvecMenu::initStyleOption(QStyleOptionButton * option) const
{
    QPushButton::initStyleOption(option);
    if (!option || !isChecked() || !isEnabled())
        return;
    // Styles tell a checked button by a shade, which in a dark palette nobody sees. A style sheet
    // that has a rule for these buttons does not look at the palette.
    QPalette & palette = option->palette;
    palette.setBrush(QPalette::Button, palette.highlight());
    palette.setBrush(QPalette::ButtonText, palette.highlightedText());
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
    Q_EMIT menuCliquay(property("identifiant"));
}

void DBoutonAvecMenu::keyPressEvent(QKeyEvent * evenement)
{
    if (!monMenuAffichay || !EstToucheMenu(*evenement)) {
        QPushButton::keyPressEvent(evenement);
        return;
    }
    evenement->accept();
    if (!evenement->isAutoRepeat())
        Q_EMIT menuCliquay(property("identifiant"));
}

void DBoutonAvecMenu::paintEvent(QPaintEvent * evenement)
{
    if (!monMenuAffichay) {
        QPushButton::paintEvent(evenement);
        return;
    }
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
    DessineMenu(peintre, texte.palette.buttonText());
}

void DBoutonAvecMenu::DessineMenu(QPainter & peintre, QBrush const & pinceau) const
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
    peintre.setPen(QPen(pinceau, kEpaisseurChevron, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    peintre.drawPolyline(chevron, static_cast<int>(std::size(chevron)));
}
