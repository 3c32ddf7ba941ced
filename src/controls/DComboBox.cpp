// controls/DComboBox.cpp
#include "controls/DComboBox.h"

#include "controls/DComboBoxDeleguay_p.h"
#include "controls/MasqueurPremierElement_p.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QListView>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QTableView>
#include <QTreeView>
#include <QWheelEvent>

#include <algorithm>
#include <limits>
#include <optional>

namespace {

bool EstUneLettre(QKeyEvent const & evenement)
{
    return !evenement.text().isEmpty() && evenement.text().at(0).isPrint() &&
           !(evenement.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

// The delegate changes the state of the item then, and its view looks for no text.
bool EstUneCoche(QKeyEvent const & evenement, QModelIndex const & courant)
{
    return evenement.key() == Qt::Key_Space && (courant.flags() & Qt::ItemIsUserCheckable) &&
           (courant.flags() & Qt::ItemIsEnabled) && courant.data(Qt::CheckStateRole).isValid();
}

// As QTreeView does with these keys before it takes them for letters.
void DeplieOuReplie(QTreeView & arbre, int touche)
{
    QModelIndex const courant = arbre.currentIndex();
    if (!courant.isValid() || !arbre.itemsExpandable())
        return;
    if (touche == Qt::Key_Asterisk)
        arbre.expandRecursively(courant);
    else if (touche == Qt::Key_Plus)
        arbre.expand(courant);
    else if (touche == Qt::Key_Minus)
        arbre.collapse(courant);
}

} // namespace

DComboBox::DComboBox(QWidget * parent)
    : QComboBox(parent)
    , monMasqueur(new MasqueurPremierElement(this))
{
    view()->setItemDelegate(new DComboBoxDeleguay(this, this)); // a view may go before it
    view()->installEventFilter(this);
}

DComboBox::~DComboBox()
{
    delete monMasqueur; // before the model may tell of its rows once more
}

void DComboBox::CachePremierElement()
{
    if (auto * const deleguay = qobject_cast<DComboBoxDeleguay *>(itemDelegate()))
        deleguay->CachePremierElement();
    monMasqueur->Synchronise();
}

bool DComboBox::PremierElementCachay() const
{
    return monMasqueur->EstActif();
}

void DComboBox::setView(QAbstractItemView * vue)
{
    // QComboBox would go on with the current view after it has deleted it.
    if (!vue || vue == view())
        return;
    QPointer<QAbstractItemDelegate> const deleguay = itemDelegate();
    view()->removeEventFilter(this);
    QComboBox::setView(vue);
    if (deleguay) // unless the former view had it as a child
        vue->setItemDelegate(deleguay);
    vue->installEventFilter(this);
    monMasqueur->Synchronise();
}

void DComboBox::setModel(QAbstractItemModel * modele)
{
    QComboBox::setModel(modele);
    monMasqueur->Synchronise();
}

void DComboBox::showPopup()
{
    monMasqueur->Synchronise();
    if (!PremierElementCachay()) {
        QComboBox::showPopup();
        return;
    }
    if (count() < 2)
        return;
    int const lignes = maxVisibleItems();
    // The base counts the hidden row too.
    setMaxVisibleItems(std::min(lignes, std::numeric_limits<int>::max() - 1) + 1);
    {
        // The base highlights the current item, which may be the hidden one. That signal cannot
        // be muted alone: whoever watches this combo box hears of nothing in the meantime.
        std::optional<QSignalBlocker> muet;
        if (currentIndex() == 0)
            muet.emplace(this);
        QComboBox::showPopup();
    }
    setMaxVisibleItems(lignes);
    RetireEspaceDuCachay();
    if (monMasqueur->EstCachay(view()->currentIndex())) {
        monMasqueur->OublieCourantCachay();
        view()->scrollToTop();
    }
}

bool DComboBox::eventFilter(QObject * objet, QEvent * evenement)
{
    bool const dansLaVue = objet == view();
    if (dansLaVue && evenement->type() == QEvent::Timer) // on which it lays itself out anew
        monMasqueur->Synchronise();
    if (dansLaVue && evenement->type() == QEvent::KeyPress && PremierElementCachay()) {
        monMasqueur->Synchronise();
        if (TraiteToucheDeLaListe(*static_cast<QKeyEvent *>(evenement)))
            return true;
    }
    return QComboBox::eventFilter(objet, evenement);
}

void DComboBox::keyPressEvent(QKeyEvent * evenement)
{
    monMasqueur->Synchronise();
    QCompleter const * const completeur = completer();
    bool const completion = completeur && completeur->popup() && completeur->popup()->isVisible();
    if (PremierElementCachay() && !completion && TraiteTouche(*evenement))
        evenement->accept();
    else
        QComboBox::keyPressEvent(evenement);
}

void DComboBox::wheelEvent(QWheelEvent * evenement)
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    if (!PremierElementCachay() || view()->isVisible() ||
        !style()->styleHint(QStyle::SH_ComboBox_AllowWheelScrolling, &option, this)) {
        QComboBox::wheelEvent(evenement);
        return;
    }
    int const delta = evenement->angleDelta().y();
    if (delta > 0)
        Active(monMasqueur->DonneLigneSuivante(currentIndex(), -1));
    else if (delta < 0)
        Active(monMasqueur->DonneLigneSuivante(std::max(currentIndex(), 0), 1));
    evenement->accept();
}

void DComboBox::inputMethodEvent(QInputMethodEvent * evenement)
{
    monMasqueur->Synchronise();
    QComboBox::inputMethodEvent(evenement);
}

// The base gives the hidden row no height, but the space between it and the next one.
void DComboBox::RetireEspaceDuCachay()
{
    int espace = 0;
    if (auto const * const liste = qobject_cast<QListView const *>(view()))
        espace = 2 * liste->spacing();
    else if (auto const * const table = qobject_cast<QTableView const *>(view()))
        espace = table->showGrid() ? 1 : 0;
    if (espace == 0)
        return;
    QWidget * const cadre = view()->parentWidget();
    bool const auDessus = cadre->y() < mapToGlobal(QPoint(0, 0)).y();
    cadre->setGeometry(
        cadre->geometry().adjusted(0, auDessus ? espace : 0, 0, auDessus ? 0 : -espace));
}

// The keys with which QComboBox could make row 0 the current one; it looks at the flags of the
// model only.
bool DComboBox::TraiteTouche(QKeyEvent const & evenement)
{
    bool const controle = evenement.modifiers() & Qt::ControlModifier;
    bool const alt = evenement.modifiers() & Qt::AltModifier;
    switch (evenement.key()) {
    case Qt::Key_Up:
    case Qt::Key_PageUp:
        if (controle && evenement.key() == Qt::Key_Up)
            return false;
        Active(monMasqueur->DonneLigneSuivante(currentIndex(), -1));
        return true;
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        if ((alt || controle) && evenement.key() == Qt::Key_Down)
            return false;
        Active(monMasqueur->DonneLigneSuivante(std::max(currentIndex(), 0), 1));
        return true;
    case Qt::Key_Home:
    case Qt::Key_End: {
        if (isEditable())
            return false;
        bool const debut = evenement.key() == Qt::Key_Home;
        Active(monMasqueur->DonneLigneSuivante(debut ? 0 : count(), debut ? 1 : -1));
        return true;
    }
    case Qt::Key_Space: // opens the list
    case Qt::Key_Select:
        return false;
    default:
        break;
    }
    if (isEditable() || evenement.text().isEmpty() || !evenement.text().at(0).isPrint())
        return false;
    Active(monMasqueur->ChercheLigne(evenement.text()));
    return true;
}

bool DComboBox::TraiteToucheDeLaListe(QKeyEvent const & evenement)
{
    if (EstUneCoche(evenement, view()->currentIndex()))
        return false;
    QModelIndex cible;
    if (EstUneLettre(evenement)) {
        if (auto * const arbre = qobject_cast<QTreeView *>(view()))
            DeplieOuReplie(*arbre, evenement.key());
        cible = monMasqueur->ChercheDansLaListe(evenement.text());
    } else if (evenement.key() == Qt::Key_Home && qobject_cast<QListView *>(view())) {
        cible = monMasqueur->DonnePremierDeLaListe(); // QListView goes to row 0, hidden or not
    } else {
        return false;
    }
    if (cible.isValid())
        view()->setCurrentIndex(cible);
    return true;
}

void DComboBox::Active(int ligne)
{
    if (ligne < 1 || ligne == currentIndex())
        return;
    QPointer<DComboBox> const vivant(this);
    setCurrentIndex(ligne);
    if (vivant && currentIndex() >= 0)
        Q_EMIT activated(currentIndex());
    if (vivant && currentIndex() >= 0)
        Q_EMIT textActivated(itemText(currentIndex()));
}
