// controls/DToolButtonRiche.h
#pragma once

#include "FabrelGuiExport.h"

#include <QPalette>
#include <QToolButton>

class QTextDocument;

/// A tool button whose text can be HTML.
///
/// The HTML is drawn centred over the whole button, and over the icon if there is one: a picture
/// beside the text belongs into the HTML. While there is HTML, the palette's button text is
/// transparent; the HTML is drawn in the colour that the button's text would have without it.
///
/// A default action (`setDefaultAction`) gives its text to the base class only: the HTML stays, and
/// the accessible name is the action's. Call `setText` first where the action's text is wanted.
class FABRELGUI_EXPORT DToolButtonRiche : public QToolButton
{
    Q_OBJECT
    // The base class tells of no change either.
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit DToolButtonRiche(QWidget * parent = nullptr);

    /// Shows HTML. Its plain text becomes the text of the base class, for the accessible name;
    /// no ampersand in it makes a shortcut.
    void setHtml(QString const & html);
    /// Shows plain text, in which an ampersand makes a shortcut.
    void setText(QString const & texte);
    /// The plain text of the HTML, without the pictures; or else the text as it was set.
    QString text() const;

    /// The size of the HTML, rounded; or else that of the base class.
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent * evenement) override;
    void changeEvent(QEvent * evenement) override;

private:
    void SuisPalette();
    void getStyleOption(QStyleOptionToolButton * option) const;
    bool EstSousFeuille() const;
    void RendsTexteTransparent();
    void RetablisTexte(QPalette const & pinceaux);
    QPalette const & PretePinceaux() const;
    QBrush DonnePinceauTexte() const;
    void RemplisDocument(QTextDocument & document) const;
    QPixmap DonneRendu(QTextDocument const & document) const;

    QString monHtml;
    bool monHtmlActif = false;
    bool monTexteFutTransparent = false; // a style sheet may have kept such a palette
    // Each has only the brushes of the text that the button has without HTML.
    QPalette mesPinceauxPropres;
    QPalette mesPinceauxSousFeuille;
};
