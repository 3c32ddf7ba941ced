// editing/DComboJetonable.h
#pragma once

#include "FabrelGuiExport.h"

#include "controls/DComboBox.h"
#include "noyau/UniChaine.h"

#include <QFont>
#include <QIcon>
#include <QPoint>
#include <QPointer>

class DLineEditJetonable;

/// A field that holds either free text or one token: a value that was chosen, shown as a coloured
/// block with a tool tip, which cannot be edited but can be dropped as a whole.
///
/// No list ever opens. The field asks for one with `SignalShowPopup`, and the host shows what it
/// has, then calls `PrendsTexteJeton` with the choice. While a token is on the text is empty.
///
/// Any key that reaches the field drops the token, an arrow or Ctrl+C too, and a letter starts the
/// free text. So do an input method, what is pasted or dropped, and a text that the host or the
/// items of the combo box put into the field; an empty one, such as that of `clearEditText`, does
/// not, `DesactiveJeton` does. The token stays when a modifier alone is pressed, when a key moves
/// the focus, and with F4 and Alt+Down, which ask for the pop-up. Escape drops the token and
/// empties the text. Text that a token or Escape removed comes back with undo.
///
/// With icons, an icon stands in place of the arrow: the normal one while the field is empty, the
/// delete icon otherwise, unless deletion is turned off. A click there empties the field. Without
/// icons the click on the arrow does the same.
///
/// As in any editable combo box, Return makes an item of the free text, which then is completed as
/// it is typed and reached by the arrow keys; `setInsertPolicy(QComboBox::NoInsert)` prevents that.
/// With a line edit of the host's own, by `setLineEdit`, there are no tokens any more.
class FABRELGUI_EXPORT DComboJetonable : public DComboBox
{
    Q_OBJECT

public:
    /// The four are paths of icons, read with `withIcons` only. A hover icon without a path, or
    /// whose file cannot be read, is the icon that it belongs to.
    DComboJetonable(QWidget * parent, bool withIcons, UniChaine normal, UniChaine normalHover,
                    UniChaine deletion, UniChaine deletionHover);

    /// Shows `text` on one line, with each run of blanks and line ends as one blank, as the token
    /// in place of what the field held. The change of text is not told. `tooltip` may have tags.
    ///
    /// A receiver of what is typed may make a token of it. In a combo box with items the completion
    /// then puts one of them in its place; a queued call, or no completer, prevents that.
    void PrendsTexteJeton(UniChaine text, UniChaine tooltip);
    /// What an empty field shows while no token is on.
    void PrendsTextePlaceHolder(UniChaine texte);
    /// Of the token only. Until this call, and for what `police` leaves open, the field's own.
    void PrendsPoliceJeton(QFont police);

    /// Replace one icon each. A path that leads to no icon leaves nothing to draw, or for a hover
    /// icon the one that it belongs to.
    void PrendsCheminIconeNormale(UniChaine chemin);
    void PrendsCheminIconeNormaleHover(UniChaine chemin);
    void PrendsCheminIconeSupprime(UniChaine chemin);
    void PrendsCheminIconeSupprimeHover(UniChaine chemin);

    /// Ends the token and removes its tool tip; the field is then empty. One without a token keeps
    /// its text, and `SignalJetonChangay` tells of the call all the same.
    void DesactiveJeton();
    /// For good: the normal icon stays, and a click on it keeps what the field holds.
    void DesactiveSuppression();
    bool UnJetonEstActif();

    /// With true the normal icon until the content changes next; with false the delete icon, if
    /// deletion is allowed.
    void ChangeTonIcone(bool normale);

    /// Where the icon is clicked, at the right in either layout direction; it is drawn 5 pixels to
    /// the left of this. In the coordinates of the combo box, also without icons.
    QRect DonneRectIcone();
    /// Without icons, whether the point is on the arrow.
    bool PosEstDansRectIcone(QPoint position);

    void showPopup() override;

    bool eventFilter(QObject * objet, QEvent * evenement) override;

Q_SIGNALS:
    /// The host may show its pop-up: by a click on the field, the icon or the arrow, by F4 or
    /// Alt+Down, or by `showPopup`. The receiver may destroy the combo box, as may that of
    /// `SignalBoutonXAppuyay`.
    void SignalShowPopup();
    /// For the host's use, to close its pop-up; the combo box never emits it.
    void SignalClosePopup();
    /// The icon or the arrow was clicked, whatever it shows; the field still holds what it held.
    void SignalBoutonXAppuyay();
    /// A token came, was replaced or went, whoever did it: the text alone does not tell, since it
    /// is empty before and after when Backspace drops a token. A click that empties the field of
    /// free text tells it too. To destroy the combo box the receiver calls `deleteLater`: a text
    /// may be on its way into the field.
    void SignalJetonChangay();

public Q_SLOTS:
    /// Chooses the icon by the content of the field.
    void PriseDoitChangeeIcone();

protected:
    void wheelEvent(QWheelEvent * evenement) override;
    void mousePressEvent(QMouseEvent * evenement) override;
    void mouseReleaseEvent(QMouseEvent * evenement) override;
    void leaveEvent(QEvent * evenement) override;
    void paintEvent(QPaintEvent * evenement) override;
    void resizeEvent(QResizeEvent * evenement) override;

private Q_SLOTS:
    void PriseTailleIcone();

private:
    friend class ComboJetonableAccessible;

    void Branche();
    void MetsPositionSouris(QPoint const & position);
    bool EstVide();
    bool ActiveIcone();
    void DegageIcone();
    void DessineIcone(QPainter & peintre);

    QPointer<DLineEditJetonable> monChamp; // a host may give the combo box another one
    bool monAvecIcones;
    bool maSuppressionPermise = true;
    QIcon monIconeNormale;
    QIcon monIconeNormaleHover; // null for the normal one, as the next
    QIcon monIconeSupprime;
    QIcon monIconeSupprimeHover;
    QPoint maPositionSouris = QPoint(-1, -1); // in the coordinates of the combo box
    bool monEtatNormal = true;
};
