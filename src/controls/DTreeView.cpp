// controls/DTreeView.cpp
#include "controls/DTreeView.h"

#include "touch/DDefileurTactile.h"
#include "touch/DZoomTactile.h"

#include <QHeaderView>
#include <QPainter>
#include <QResizeEvent>
#include <QTextOption>

#include <algorithm>
#include <cstdlib>

namespace {

// The section that Qt stretches because it is the last one, whatever its mode; -1 if none.
int DonneDerniereEtiree(QHeaderView const & entete)
{
    if (!entete.stretchLastSection())
        return -1;
    int rang = entete.count() - 1;
    while (rang >= 0 && entete.isSectionHidden(entete.logicalIndex(rang)))
        --rang;
    return entete.logicalIndex(rang);
}

bool PeutChanger(QHeaderView const & entete, int colonne)
{
    auto const mode = entete.sectionResizeMode(colonne);
    return !entete.isSectionHidden(colonne) &&
           (mode == QHeaderView::Interactive || mode == QHeaderView::Stretch);
}

// Keeps a header from laying out its stretched sections while only some columns have their new
// widths, which `resizeSection` has it do for a repaint.
class SansMiseAJour
{
public:
    explicit SansMiseAJour(QWidget & widget)
        : monWidget(widget)
        , monEtat(!widget.testAttribute(Qt::WA_ForceUpdatesDisabled))
    {
        monWidget.setUpdatesEnabled(false);
    }
    ~SansMiseAJour() { monWidget.setUpdatesEnabled(monEtat); }
    Q_DISABLE_COPY_MOVE(SansMiseAJour)

private:
    QWidget & monWidget;
    bool const monEtat;
};

} // namespace

DTreeView::DTreeView(QWidget * parent)
    : QTreeView(parent)
{
}

void DTreeView::AfficheMessageSiVide(QString const & message)
{
    monMessage = message;
    monMessageActif = true;
    viewport()->update();
}

void DTreeView::MetsRedimensionnementAvecResizeEvent(bool actif)
{
    monRedimensionnementActif = actif;
}

bool DTreeView::GereDrawPrimitive(QStyle::PrimitiveElement, QStyleOption const *, QPainter *,
                                  QWidget const *) const
{
    return false;
}

void DTreeView::showEvent(QShowEvent * evenement)
{
    if (!monDefileurEstCree) {
        monDefileurEstCree = true;
        new DDefileurTactile(this);
        CreeZoom(*viewport());
    }
    QTreeView::showEvent(evenement);
}

void DTreeView::paintEvent(QPaintEvent * evenement)
{
    if (MontreMessage())
        DessineMessage();
    else
        QTreeView::paintEvent(evenement);
}

void DTreeView::resizeEvent(QResizeEvent * evenement)
{
    int const ancienne = evenement->oldSize().width();
    int const delta = evenement->size().width() - ancienne;
    if (!monRedimensionnementActif || header()->isVisible() || ancienne < 0 || delta == 0) {
        QTreeView::resizeEvent(evenement);
        return;
    }
    QList<int> const avant = DonneLargeurs();
    QTreeView::resizeEvent(evenement);
    RepartisPixels(delta, DonneLargeursSansEtirement(avant));
}

void DTreeView::scrollContentsBy(int dx, int dy)
{
    QTreeView::scrollContentsBy(dx, dy);
    if (MontreMessage())
        viewport()->update(); // the base has moved the pixels of a text that stays where it is
}

void DTreeView::setupViewport(QWidget * viewport)
{
    QTreeView::setupViewport(viewport);
    if (monDefileurEstCree)
        CreeZoom(*viewport); // the one before goes with the viewport before
}

void DTreeView::CreeZoom(QWidget & viewport)
{
    auto const * const zoom = new DZoomTactile(&viewport);
    connect(zoom, &DZoomTactile::SignalZoomTactile, this, &DTreeView::SignalZoomTactile,
            Qt::UniqueConnection);
}

bool DTreeView::MontreMessage() const
{
    return monMessageActif && (!model() || model()->rowCount(rootIndex()) <= 0);
}

void DTreeView::DessineMessage()
{
    QPainter peintre(viewport());
    peintre.setPen(QPen(Qt::gray, 1));
    peintre.setFont(header()->font());
    // Deliberate: the viewport begins below a visible header, so the text is left one header's
    // height of room under it.
    if (header()->isVisible())
        peintre.translate(0, header()->height());
    QRectF rect = peintre.boundingRect(QRectF(viewport()->rect()), Qt::TextWordWrap, monMessage);
    rect.setWidth(viewport()->width());
    rect.moveTo(0, 0);
    peintre.drawText(rect, monMessage, QTextOption());
}

QList<int> DTreeView::DonneLargeurs() const
{
    QList<int> largeurs;
    for (int colonne = 0; colonne < header()->count(); ++colonne)
        largeurs.append(header()->sectionSize(colonne));
    return largeurs;
}

// The base gives the whole change of width to what it stretches: `avant`, from before its work,
// tells how wide that was, or the change would count twice.
QList<int> DTreeView::DonneLargeursSansEtirement(QList<int> const & avant) const
{
    QList<int> largeurs = DonneLargeurs();
    if (largeurs.size() != avant.size())
        return largeurs;
    int const derniere = DonneDerniereEtiree(*header());
    for (int colonne = 0; colonne < largeurs.size(); ++colonne)
        if (colonne == derniere || header()->sectionResizeMode(colonne) == QHeaderView::Stretch)
            largeurs[colonne] = avant[colonne];
    return largeurs;
}

// The columns that may change, by logical index from the one whose turn it is.
QList<int> DTreeView::DonneTourDesColonnes() const
{
    int const nombre = header()->count();
    int const premiere = maProchaineColonne < nombre ? maProchaineColonne : 0;
    QList<int> tour;
    for (int rang = 0; rang < nombre; ++rang) {
        int const colonne = (premiere + rang) % nombre;
        if (PeutChanger(*header(), colonne))
            tour.append(colonne);
    }
    return tour;
}

// One pixel per turn, in numbers first: from the second `resizeSection` on, Qt would lay out what
// it stretches before each one, and the turns would go by those widths.
void DTreeView::RepartisPixels(int delta, QList<int> largeurs)
{
    int const minimum = header()->minimumSectionSize();
    int const maximum = header()->maximumSectionSize();
    int const sens = delta < 0 ? -1 : 1;
    QList<int> tour = DonneTourDesColonnes();
    qsizetype rang = 0;
    for (int reste = std::abs(delta); reste > 0 && !tour.isEmpty();) {
        rang %= tour.size();
        int const colonne = tour[rang];
        int & largeur = largeurs[colonne];
        // A width outside the limits, as one of 0 is, goes to the limit at once.
        int const pas = sens * (std::max(minimum, std::min(largeur + sens, maximum)) - largeur);
        if (pas <= 0 || pas > reste) {
            tour.removeAt(rang);
            continue;
        }
        largeur += sens * pas;
        reste -= pas;
        maProchaineColonne = (colonne + 1) % static_cast<int>(largeurs.size());
        ++rang;
    }
    RedimensionneColonnes(largeurs);
}

void DTreeView::RedimensionneColonnes(QList<int> const & largeurs)
{
    SansMiseAJour const garde(*header());
    for (int colonne = 0; colonne < largeurs.size(); ++colonne)
        if (!header()->isSectionHidden(colonne))
            header()->resizeSection(colonne, largeurs[colonne]);
}
