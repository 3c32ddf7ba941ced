// controls/DLabelElision.h
#pragma once

#include "noyau/UniChaine.h"

#include "FabrelGuiExport.h"

#include <QColor>
#include <QTextLayout>
#include <QTextOption>
#include <QWidget>

/// A label of one line that keeps the formats of rich text and shows "…" where the text is cut.
///
/// A text is rich when `Qt::mightBeRichText` takes it for HTML; its first paragraph is shown. Of
/// either kind, the label shows what stands before the first line separator; a line feed takes no
/// room. The text is cut between any two characters. It stands at the top of the label, which
/// layouts keep as high as the font. An accessible name that nobody has set follows the text.
class FABRELGUI_EXPORT DLabelElision : public QWidget
{
    Q_OBJECT

public:
    /// Which part of a text that does not fit gives way to the ellipsis.
    enum Elision
    {
        kSansElision = 0, ///< the characters that do not fit are left out, without an ellipsis
        kElisionFin = 1,  ///< the beginning stays; the mode of a new label
        kElisionDebut = 2 ///< the end stays, to its last character
    };

    explicit DLabelElision(QString const & texte, QWidget * parent = nullptr);
    explicit DLabelElision(QWidget * parent = nullptr);

    /// Does nothing for the text that the label has, unless forced.
    void PrendsTexte(QString const & texte, bool force = false);
    /// The text without mark-up.
    QString DonneTexte() const;
    /// The text without mark-up, or of an elided label as many characters of the text as it was
    /// given, mark-up included, as fit in `largeur` with the "..." behind them.
    QString DonneTexteAvecElision(int largeur) const;

    void PrendsModeElision(Elision mode);
    Elision DonneModeElision() const;
    /// Whether the text is cut at the size of the last `AjusteElision`, or at that of the widget if
    /// this or the text has changed since.
    bool EstEliday() const;

    /// Only the horizontal part tells. Left and right change sides in a right-to-left widget,
    /// unless `Qt::AlignAbsolute` is given.
    void PrendsAlignement(QFlags<Qt::AlignmentFlag> alignement);
    QFlags<Qt::AlignmentFlag> DonneAlignement() const;

    void PrendsPolice(QFont const & police);
    QFont DonnePolice() const;

    /// The pen of the text; an invalid colour leaves the painter's, which in the widget's own
    /// painting is that of the palette.
    void PrendsCouleurBase(QColor couleur);
    void PrendsPalette(QPalette palette);
    /// What is filled behind the ellipsis; `Qt::transparent` for nothing.
    void PrendsCouleurFondElipse(QColor const & couleur);
    QColor DonneCouleurFondElipse();

    /// The width of what is shown, with the ellipsis if there is one.
    int DonneLongueurLigne() const;

    /// Lays the text out for that size instead of the widget's, until the widget is resized or the
    /// text, the font, the mode or the alignment change. An invalid size does nothing.
    void AjusteElision(QSize const & taille);

    using QWidget::render;
    /// Draws the text with its top left at `position`, without a background. The label needs never
    /// have been shown. Region and flags do not matter; without a painter, nothing happens.
    void render(QPainter * peintre, QPoint const & position = QPoint(),
                QRegion const & region = QRegion(),
                QFlags<QWidget::RenderFlag> options = QFlags<QWidget::RenderFlag>());

    QSize sizeHint() const override;
    /// No width, so that layouts may shrink the label to nothing, and the height of the font.
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent * evenement) override;
    void paintEvent(QPaintEvent * evenement) override;
    void changeEvent(QEvent * evenement) override;

private:
    bool AjustementEstDu() const;
    void DemandeAjustement();
    void AjusteSiDu() const;
    int DonneLargeurTexte() const;
    void DisposeTexte(QSize const & taille) const;
    QTextLine DisposeFin(double place) const;
    void PlaceAvecEllipse(QTextLine & ligne, double place) const;
    Qt::Alignment DonneAlignementVisuel() const;
    bool EllipseEstAGauche() const;
    void DessineEllipse(QPainter & peintre, QTextLine const & ligne) const;

    Elision monModeElision = kElisionFin;
    UniChaine monTexteSource;
    QColor maCouleurBase;
    // What comes of laying the text out is mutable: questions have it made when it is due.
    mutable bool monElision = false;
    mutable int maLargeurTexte = 0;
    mutable int maHauteurTexte = 0;
    mutable QTextLayout monLayout;
    QTextOption monOption;
    QColor maCouleurFondElipse = Qt::transparent;
    mutable bool monAjustementDu = true;
    mutable QSize maTailleVue;             // the widget's when the text was last laid out
    mutable double maLargeurPleine = -1.0; // of the whole text; negative until it is measured
    mutable int maLargeurDisponible = 0;   // what the text was last laid out for
    mutable int maLargeurEllipse = 0;
    mutable double maPositionEllipse = 0.0; // its left edge
};
