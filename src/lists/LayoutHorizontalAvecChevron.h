// lists/LayoutHorizontalAvecChevron.h
#pragma once

#include "FabrelGuiExport.h"

#include <QLayout>
#include <QList>
#include <QPointer>

#include <memory>
#include <utility>

class RetraitDuFocus;

/// A row that never wraps and never scrolls. Once an item has no room, it and all that follow are
/// hidden, and the chevron stands just behind the last visible one.
///
/// Items are widgets and spacers, laid out from left to right in every language. A hidden widget
/// is not hidden as by `QWidget::hide`: it has the empty rectangle, and neither it nor what stands
/// in it can have the keyboard focus until it is visible again or leaves the layout.
class FABRELGUI_EXPORT LayoutHorizontalAvecChevron : public QLayout
{
    Q_OBJECT

public:
    /// The items in order, each with whether it was visible at the last layout.
    using ListeItems = QList<std::pair<bool, QLayoutItem *>>;
    using FonctionTaille = QSize (*)(QLayoutItem * item);

    /// `chevron` may be null: then nothing is hidden, and what has no room stands one over the
    /// other. `marge`, in pixels, is that of all four sides. The chevron may die first.
    LayoutHorizontalAvecChevron(QWidget * parent, QWidget * chevron, int marge);
    ~LayoutHorizontalAvecChevron() override;

    /// Takes `item`; one that is in the row already moves to its end. Null is ignored.
    void addItem(QLayoutItem * item) override;
    int count() const override;
    Qt::Orientations expandingDirections() const override;
    int heightForWidth(int largeur) const override;
    /// The chevron is no item. Null out of range.
    QLayoutItem * itemAt(int index) const override;
    /// Room for the chevron alone.
    QSize minimumSize() const override;
    void setGeometry(QRect const & rect) override;
    /// Room for all items.
    QSize sizeHint() const override;
    /// Null out of range.
    QLayoutItem * takeAt(int index) override;

    /// False out of range, and for an item that has not been laid out where it now is.
    bool ItemEstVisible(int index) const;
    ListeItems PreteListe() const;
    /// How many items would be hidden at `taille`, with the sizes that `fonction` tells. Moves no
    /// widget and leaves what `ItemEstVisible` says.
    int TestDonneNombreItemMasque(QSize const & taille, FonctionTaille fonction) const;
    int TestDonneNombreItemMasque(QSize const & taille, FonctionTaille fonction,
                                  ListeItems liste) const;
    /// Puts `item` before the one at `index`, at the end where there is none, a negative index
    /// included. `etirement` has no effect: only spacers stretch.
    void insertItem(int index, QLayoutItem * item, int etirement);
    void insertWidget(int index, QWidget * widget, int etirement);

Q_SIGNALS:
    /// The end of a layout: what is visible may have changed.
    void SignalMiseEnPlace();

private Q_SLOTS:
    void PriseChevronDetruit();
    void PriseFocusChangay();

private:
    struct Passe;

    int doLayout(QRect const & rect, ListeItems & liste, FonctionTaille taille, bool test) const;
    void AvanceSurItem(Passe & passe, int index) const;
    bool ItemDepasse(Passe const & passe, int index, int xSuivant, int espacement) const;
    int DonneLargeurRessort(Passe const & passe, int index, int espacement) const;
    int DonneEspacement(QLayoutItem & item, int espacement) const;
    void Place(Passe const & passe) const;
    void PlaceChevron(Passe const & passe) const;
    void MetAJourRetrait();

    ListeItems maListe;
    QPointer<QWidget> monChevron;
    QLayoutItem * monItemChevron = nullptr; // kept out of the list
    std::unique_ptr<RetraitDuFocus> monRetrait;
    int monEtat = 0; // counts the changes of the row
};
