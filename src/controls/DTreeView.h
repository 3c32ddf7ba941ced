// controls/DTreeView.h
#pragma once

#include "FabrelGuiExport.h"

#include <QList>
#include <QStyle>
#include <QTreeView>

/// A `QTreeView` with touch scrolling, a message for the time when it is empty, and columns that
/// follow its width; subclasses may draw single elements of it in the style's place.
///
/// Touch scrolling comes with the first show, which also makes it scroll vertically by pixels.
class FABRELGUI_EXPORT DTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit DTreeView(QWidget * parent = nullptr);

    /// From now on, writes `message` in the view while there is no model, or no row under the root
    /// index. The text is in gray and in the font of the header, at the left and at the top, and
    /// wraps at the width of the view. An empty `message` leaves an empty view.
    void AfficheMessageSiVide(QString const & message);

    /// Whether the columns share what the width of the view gains or loses, pixel by pixel and in
    /// the order of their logical indexes; off at first.
    ///
    /// Only while the header is not visible. Columns that are hidden, or whose resize mode is
    /// neither `Interactive` nor `Stretch`, keep their widths, as does one that has reached the
    /// smallest or the largest width of a section. Pixels that no column can take are dropped.
    /// `sectionResized` tells the whole change of a column at once. Sections that Qt stretches,
    /// which it lays out in the room that the others leave, may be told before and after as well.
    void MetsRedimensionnementAvecResizeEvent(bool actif);

    /// Asked by the style before it draws one of the elements that it leaves to the view. True
    /// means that the view has drawn it, and the style draws nothing; always false here.
    virtual bool GereDrawPrimitive(QStyle::PrimitiveElement element, QStyleOption const * option,
                                   QPainter * peintre, QWidget const * widget) const;

Q_SIGNALS:
    /// Two fingers spread or close over the view, once it has been shown: the factor since the
    /// step before, never 1.
    void SignalZoomTactile(double facteur);

protected:
    void showEvent(QShowEvent * evenement) override;
    void paintEvent(QPaintEvent * evenement) override;
    void resizeEvent(QResizeEvent * evenement) override;
    void scrollContentsBy(int dx, int dy) override;
    void setupViewport(QWidget * viewport) override;

private:
    void CreeZoom(QWidget & viewport);
    bool MontreMessage() const;
    void DessineMessage();
    QList<int> DonneLargeurs() const;
    QList<int> DonneLargeursSansEtirement(QList<int> const & avant) const;
    QList<int> DonneTourDesColonnes() const;
    void RepartisPixels(int delta, QList<int> largeurs);
    void RedimensionneColonnes(QList<int> const & largeurs);

    bool monDefileurEstCree = false;
    bool monRedimensionnementActif = false;
    bool monMessageActif = false;
    QString monMessage;
    int maProchaineColonne = 0; // the first that the next pixel is offered to
};
