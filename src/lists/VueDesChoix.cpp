// lists/VueDesChoix.cpp
#include "lists/VueDesChoix_p.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargeInterne = 2; // pixels around the rows
constexpr int kCadre = 6;        // pixels: twice the margin and the line of the frame

// The last cell asks for the frame too: the sum of a row is then the width of a view that cuts none
// of its text.
class DeleguayDesChoix : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(QStyleOptionViewItem const & option, QModelIndex const & index) const override
    {
        QSize const taille = QStyledItemDelegate::sizeHint(option, index);
        bool const derniere = index.column() == index.model()->columnCount() - 1;
        return derniere ? taille + QSize(kCadre, 0) : taille;
    }
};

} // namespace

VueDesChoix::VueDesChoix(QWidget * parent)
    : QTreeView(parent)
{
    // The sheets are white in every theme, so that the text may not be the theme's. Before the
    // sheet: each new polish goes back to the palette that the sheet found.
    QPalette couleurs;
    for (auto const role : {QPalette::Text, QPalette::WindowText}) {
        couleurs.setColor(role, Qt::black);
        couleurs.setColor(QPalette::Disabled, role, Qt::gray);
    }
    setPalette(couleurs);
    setStyleSheet(u"QTreeView{padding: %1px;}"_s.arg(kMargeInterne));
    setItemDelegate(new DeleguayDesChoix(this));
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setRootIsDecorated(false);
    setHeaderHidden(true);
    header()->setStretchLastSection(false); // never below a default width
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QSize VueDesChoix::DisposeColonnes()
{
    QAbstractItemModel const & modele = *model();
    QList<int> largeurs(modele.columnCount(), 0);
    QSize taille(0, kCadre);
    for (int rangee = 0; rangee < modele.rowCount(); ++rangee) {
        int largeur = 0;
        for (int colonne = 0; colonne < largeurs.size(); ++colonne) {
            int const cellule = sizeHintForIndex(modele.index(rangee, colonne)).width();
            largeurs[colonne] = std::max(largeurs.at(colonne), cellule);
            largeur += cellule;
        }
        taille.setWidth(std::max(taille.width(), largeur));
        // Deliberate: once per cell, so that two columns double the height.
        taille.rheight() += static_cast<int>(largeurs.size()) * sizeHintForRow(rangee);
    }
    // The last one takes what is left: more or less than its contents.
    int const derniere = static_cast<int>(largeurs.size()) - 1;
    for (int colonne = 0; colonne < derniere; ++colonne)
        header()->resizeSection(colonne, largeurs.at(colonne));
    header()->setSectionResizeMode(derniere, QHeaderView::Stretch);
    return taille;
}

// Never sideways: no bar would bring back what slid away, under the very mouse that made the row
// current.
void VueDesChoix::scrollTo(QModelIndex const & index, ScrollHint maniere)
{
    QTreeView::scrollTo(index.siblingAtColumn(0), maniere);
}

// Keys end here. One that the view has no use for would go on to the list, which sends what it gets
// to the linked widget, from where it came; and then to the widget's own parent.
void VueDesChoix::keyPressEvent(QKeyEvent * touche)
{
    QTreeView::keyPressEvent(touche);
    touche->accept();
}
