// editing/DLineEdit.cpp
#include "editing/DLineEdit.h"

#include "foundation/ThemesQt.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QStyle>

using namespace Qt::StringLiterals;

DLineEdit::DLineEdit(QWidget * parent)
    : QLineEdit(parent)
    , maPaletteNormale(QApplication::palette(this))
{
    // Nothing but the text of an error is imposed, or the field would keep today's colours when the
    // application changes from light to dark.
    maPaletteNormale.setResolveMask(0);
    maPaletteErreur = maPaletteNormale;
    maPaletteErreur.setColor(QPalette::Text,
                             ThemesQt::Instance()->DonneCouleur(u"couleurErreurLineEdit"_s));
    setAttribute(Qt::WA_Hover); // few styles ask for the hover events of a line edit
    installEventFilter(this);
}

void DLineEdit::MetsErreur(bool erreur)
{
    if (monErreur == erreur)
        return;
    monErreur = erreur;
    setProperty("erreur", erreur);
    style()->unpolish(this);
    style()->polish(this);
    MetsAJourPalette();
}

void DLineEdit::MetsAJourPalette()
{
    MontrePalette(monErreur && !monSurvol && !hasFocus());
}

bool DLineEdit::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet != this)
        return QLineEdit::eventFilter(objet, evenement);
    // Deliberate: the mouse leaves out of error too, or an error that ends under it would leave the
    // next one unseen; it comes in error only, so that an error found under the mouse is seen.
    if (evenement->type() == QEvent::HoverLeave)
        monSurvol = false;
    if (!monErreur)
        return false;

    switch (evenement->type()) {
    case QEvent::HoverEnter:
        monSurvol = true;
        MontrePalette(false);
        break;
    case QEvent::HoverLeave:
        MontrePalette(!hasFocus());
        break;
    case QEvent::FocusIn:
        MontrePalette(false);
        break;
    case QEvent::FocusOut:
        MontrePalette(!monSurvol);
        break;
    default:
        break;
    }
    return false;
}

void DLineEdit::changeEvent(QEvent * evenement)
{
    QLineEdit::changeEvent(evenement);
    // A style sheet sets its colours after the style that it stands upon has polished the field.
    if (evenement->type() == QEvent::PaletteChange && monErreurEstMontree)
        MetsAJourPalette();
}

void DLineEdit::MontrePalette(bool erreur)
{
    if (monChangementEnCours) // called by a polish that the change brought about
        return;
    QScopedValueRollback const garde(monChangementEnCours, true);
    if (testAttribute(Qt::WA_StyleSheet))
        MontrePaletteAvecFeuille(erreur);
    else
        setPalette(erreur ? maPaletteErreur : maPaletteNormale);
    monErreurEstMontree = erreur;
}

// The sheet's colours stand in the palette of the field.
void DLineEdit::MontrePaletteAvecFeuille(bool erreur)
{
    if (erreur) {
        QPalette palette = this->palette();
        palette.setBrush(QPalette::Text, maPaletteErreur.text());
        setPalette(palette);
    } else if (monErreurEstMontree) {
        // Only a polish brings the sheet's colours back.
        style()->unpolish(this);
        setPalette(maPaletteNormale);
        style()->polish(this);
    }
}
