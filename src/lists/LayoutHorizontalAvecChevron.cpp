// lists/LayoutHorizontalAvecChevron.cpp
#include "lists/LayoutHorizontalAvecChevron.h"

#include "lists/RetraitDuFocus_p.h"

#include <QApplication>
#include <QSpacerItem>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

QSize DonneTaillePreferee(QLayoutItem * item)
{
    return item->sizeHint();
}

// Puts what is hidden where nothing is seen of it. Qt keeps the least size of a widget that is
// given no room, which would stand over the first items; so such a one goes out of its parent.
void Cache(QLayoutItem & item)
{
    item.setGeometry(QRect());
    QWidget * const widget = item.widget();
    if (widget && !item.isEmpty() && !widget->size().isEmpty())
        widget->move(-widget->width(), 0);
}

} // namespace

struct LayoutHorizontalAvecChevron::Passe
{
    QRect rect;
    QRect zone; // `rect` without the margins
    ListeItems & liste;
    FonctionTaille taille;
    bool avecChevron;
    int espacement; // -1 where each item's style tells it
    int largeurChevron;
    int x;
    int hauteurLigne = 0;
    bool depasse = false;
    std::optional<int> largeurRessort = {}; // 0 is worked out as well
    QList<QRect> places = {};               // of no use for what is hidden
};

LayoutHorizontalAvecChevron::LayoutHorizontalAvecChevron(QWidget * parent, QWidget * chevron,
                                                         int marge)
    : QLayout(parent)
    , monChevron(chevron)
    , monRetrait(std::make_unique<RetraitDuFocus>())
{
    if (chevron) {
        addWidget(chevron);
        connect(chevron, &QObject::destroyed, this,
                &LayoutHorizontalAvecChevron::PriseChevronDetruit, Qt::UniqueConnection);
    }
    setContentsMargins(marge, marge, marge, marge);
    connect(qApp, &QApplication::focusChanged, this,
            &LayoutHorizontalAvecChevron::PriseFocusChangay, Qt::UniqueConnection);
}

LayoutHorizontalAvecChevron::~LayoutHorizontalAvecChevron()
{
    monRetrait.reset(); // while the widgets are there
    for (auto const & [visible, item] : std::as_const(maListe))
        delete item;
    delete monItemChevron;
}

void LayoutHorizontalAvecChevron::addItem(QLayoutItem * item)
{
    insertItem(-1, item, 0);
}

int LayoutHorizontalAvecChevron::count() const
{
    return static_cast<int>(maListe.size());
}

Qt::Orientations LayoutHorizontalAvecChevron::expandingDirections() const
{
    return Qt::Horizontal;
}

int LayoutHorizontalAvecChevron::heightForWidth(int largeur) const
{
    ListeItems copie = maListe;
    return doLayout(QRect(0, 0, largeur, 0), copie, DonneTaillePreferee, true);
}

QLayoutItem * LayoutHorizontalAvecChevron::itemAt(int index) const
{
    return index >= 0 && index < count() ? maListe.at(index).second : nullptr;
}

QSize LayoutHorizontalAvecChevron::minimumSize() const
{
    return monItemChevron ? QSize(monItemChevron->sizeHint().width() + spacing(), 0) : QSize(0, 0);
}

void LayoutHorizontalAvecChevron::setGeometry(QRect const & rect)
{
    // The base takes only items along to a parent that comes later.
    if (monChevron && parentWidget() && monChevron->parentWidget() != parentWidget())
        addChildWidget(monChevron);
    QLayout::setGeometry(rect);
    int const etat = monEtat;
    doLayout(rect, maListe, DonneTaillePreferee, false);
    // A widget that heard of its new size may have changed the row, which is then laid out anew.
    if (etat != monEtat)
        return;
    MetAJourRetrait();
    Q_EMIT SignalMiseEnPlace();
}

QSize LayoutHorizontalAvecChevron::sizeHint() const
{
    qint64 x = 0;
    qint64 largeur = 0;
    int hauteur = 0;
    int const largeurChevron = monItemChevron ? monItemChevron->sizeHint().width() : 0;
    for (int i = 0; i < count(); ++i) {
        QLayoutItem & item = *maListe.at(i).second;
        // A spacer has the size of the last layout, but needs none.
        QSize const taille = item.spacerItem() ? QSize(0, 0) : item.sizeHint();
        int const espacement = DonneEspacement(item, spacing());
        x += taille.width() + espacement;
        largeur = std::max(largeur, i + 1 < count() ? x + largeurChevron : x - espacement);
        hauteur = std::max(hauteur, taille.height());
    }
    // One pixel more: what ends on the last one has no room.
    largeur = std::min<qint64>(largeur + 1, QWIDGETSIZE_MAX);
    QMargins const marges = contentsMargins();
    return QSize(static_cast<int>(largeur), hauteur).grownBy(marges);
}

QLayoutItem * LayoutHorizontalAvecChevron::takeAt(int index)
{
    QLayoutItem * const item = itemAt(index);
    if (!item)
        return nullptr;
    maListe.removeAt(index);
    monRetrait->Rends(item->widget());
    ++monEtat;
    invalidate();
    return item;
}

bool LayoutHorizontalAvecChevron::ItemEstVisible(int index) const
{
    return itemAt(index) && maListe.at(index).first;
}

LayoutHorizontalAvecChevron::ListeItems LayoutHorizontalAvecChevron::PreteListe() const
{
    return maListe;
}

int LayoutHorizontalAvecChevron::TestDonneNombreItemMasque(QSize const & taille,
                                                           FonctionTaille fonction) const
{
    return TestDonneNombreItemMasque(taille, fonction, maListe);
}

int LayoutHorizontalAvecChevron::TestDonneNombreItemMasque(QSize const & taille,
                                                           FonctionTaille fonction,
                                                           ListeItems liste) const
{
    doLayout(QRect(QPoint(0, 0), taille), liste, fonction, true);
    return static_cast<int>(std::count_if(liste.begin(), liste.end(),
                                          [](auto const & entree) { return !entree.first; }));
}

void LayoutHorizontalAvecChevron::insertItem(int index, QLayoutItem * item, int)
{
    if (!item)
        return;
    ++monEtat;
    if (monChevron && item->widget() == monChevron) {
        if (item != monItemChevron)
            delete std::exchange(monItemChevron, item);
    } else {
        auto const ancien =
            std::find_if(maListe.cbegin(), maListe.cend(),
                         [item](auto const & entree) { return entree.second == item; });
        if (ancien != maListe.cend()) {
            index -= ancien - maListe.cbegin() < index;
            maListe.erase(ancien);
        }
        index = index < 0 || index > count() ? count() : index;
        maListe.insert(index, {false, item});
        // Deliberate: what follows has been taken out and put back, so it is not laid out yet.
        for (int i = index + 1; i < count(); ++i)
            maListe[i].first = false;
    }
    invalidate();
}

void LayoutHorizontalAvecChevron::insertWidget(int index, QWidget * widget, int etirement)
{
    if (!widget)
        return;
    addChildWidget(widget);
    insertItem(index, new QWidgetItem(widget), etirement);
}

void LayoutHorizontalAvecChevron::PriseChevronDetruit()
{
    monRetrait->Rends(monItemChevron->widget());
    monChevron = nullptr;
    delete std::exchange(monItemChevron, nullptr);
    ++monEtat;
    invalidate();
}

void LayoutHorizontalAvecChevron::PriseFocusChangay()
{
    if (parentWidget())
        monRetrait->CedeFocus(*parentWidget()->window(), monChevron);
}

int LayoutHorizontalAvecChevron::doLayout(QRect const & rect, ListeItems & liste,
                                          FonctionTaille taille, bool test) const
{
    QMargins const marges = contentsMargins();
    QRect const zone = rect.marginsRemoved(marges);
    Passe passe{.rect = rect,
                .zone = zone,
                .liste = liste,
                .taille = taille,
                .avecChevron = monItemChevron != nullptr,
                .espacement = spacing(),
                .largeurChevron = monItemChevron ? taille(monItemChevron).width() : 0,
                .x = zone.left()};
    passe.places.reserve(liste.size());
    for (int i = 0; i < liste.size(); ++i)
        AvanceSurItem(passe, i);
    if (!test)
        Place(passe);
    return zone.top() + passe.hauteurLigne + marges.bottom() - rect.top();
}

void LayoutHorizontalAvecChevron::AvanceSurItem(Passe & passe, int index) const
{
    auto & [visible, item] = passe.liste[index];
    int const espacement = DonneEspacement(*item, passe.espacement);
    if (QSpacerItem * const ressort = item->spacerItem()) {
        if (!passe.depasse && !passe.largeurRessort)
            passe.largeurRessort = DonneLargeurRessort(passe, index, espacement);
        ressort->changeSize(passe.largeurRessort.value_or(0), 1, QSizePolicy::Minimum,
                            QSizePolicy::Minimum);
    }
    QSize const taille = passe.taille(item);
    int const xSuivant = passe.x + taille.width() + espacement;
    passe.depasse = passe.depasse || ItemDepasse(passe, index, xSuivant, espacement);
    visible = !passe.depasse;
    passe.hauteurLigne = std::max(passe.hauteurLigne, taille.height());
    // Deliberate: the bottom margin has no part in the centring, nor the language's direction.
    QRect const reste(QPoint(passe.x, passe.zone.top()), passe.rect.bottomRight());
    passe.places.append(
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignLeft | Qt::AlignVCenter, taille, reste));
    if (visible)
        passe.x = xSuivant;
}

bool LayoutHorizontalAvecChevron::ItemDepasse(Passe const & passe, int index, int xSuivant,
                                              int espacement) const
{
    // Deliberate: `right` is the last pixel, so a row that ends on it has no room.
    if (xSuivant - espacement > passe.zone.right())
        return true;
    bool const dernier = index + 1 == passe.liste.size(); // which may use the chevron's room
    return !dernier && xSuivant + passe.largeurChevron > passe.zone.right();
}

int LayoutHorizontalAvecChevron::DonneLargeurRessort(Passe const & passe, int index,
                                                     int espacement) const
{
    qint64 reste = qint64(passe.zone.width()) - passe.x - 1;
    int nbRessorts = 1;
    for (int i = index + 1; i < passe.liste.size(); ++i) {
        QLayoutItem * const item = passe.liste.at(i).second;
        if (item->spacerItem())
            ++nbRessorts;
        else
            // Deliberate: the spacing is that of the first spacer, and is given back.
            reste -= passe.taille(item).width() - espacement;
    }
    return static_cast<int>(std::max<qint64>(0, reste) / nbRessorts);
}

int LayoutHorizontalAvecChevron::DonneEspacement(QLayoutItem & item, int espacement) const
{
    if (espacement != -1)
        return espacement;
    QWidget const * const widget = item.widget() ? item.widget() : parentWidget();
    QStyle const * const style = widget ? widget->style() : QApplication::style();
    return style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, Qt::Horizontal);
}

void LayoutHorizontalAvecChevron::Place(Passe const & passe) const
{
    int const etat = monEtat;
    PlaceChevron(passe);
    for (int i = 0; i < passe.places.size() && etat == monEtat; ++i) {
        QLayoutItem & item = *passe.liste.at(i).second;
        if (passe.avecChevron && !passe.liste.at(i).first)
            Cache(item);
        else
            item.setGeometry(passe.places.at(i));
    }
}

void LayoutHorizontalAvecChevron::PlaceChevron(Passe const & passe) const
{
    if (!monItemChevron)
        return;
    if (!passe.depasse) {
        Cache(*monItemChevron);
        return;
    }
    QSize const taille = passe.taille(monItemChevron);
    int const jeu = passe.zone.height() - taille.height();
    int const y = passe.zone.top() + (jeu > 0 ? jeu / 2 : 0);
    monItemChevron->setGeometry(QRect(QPoint(passe.x, y), taille));
}

void LayoutHorizontalAvecChevron::MetAJourRetrait()
{
    auto const retire = [this](QLayoutItem const * item, bool sansPlace) {
        if (!item || !item->widget())
            return;
        if (sansPlace)
            monRetrait->Retire(*item->widget());
        else
            monRetrait->Rends(item->widget());
    };
    bool deborde = false;
    for (auto const & [visible, item] : std::as_const(maListe)) {
        deborde = deborde || !visible;
        retire(item, !visible && monItemChevron);
    }
    retire(monItemChevron, !deborde);
    PriseFocusChangay();
}
