// editing/ChampJetonableAccessible.cpp
#include "editing/ChampJetonableAccessible_p.h"

#include "editing/DLineEditJetonable_p.h"

#include <QFontMetrics>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include <algorithm>

ChampJetonableAccessible::ChampJetonableAccessible(DLineEditJetonable * champ)
    : QAccessibleWidget(champ, QAccessible::EditableText)
{
}

QString ChampJetonableAccessible::text(QAccessible::Text nature) const
{
    if (nature == QAccessible::Value)
        return DonneTexteLu();
    QString texte = QAccessibleWidget::text(nature);
    if (nature != QAccessible::Description)
        return texte;
    if (texte.isEmpty())
        return PreteChamp().placeholderText();
    // The tool tip of a token is in tags.
    return Qt::mightBeRichText(texte) ? QTextDocumentFragment::fromHtml(texte).toPlainText()
                                      : texte;
}

void ChampJetonableAccessible::setText(QAccessible::Text nature, QString const & texte)
{
    if (nature == QAccessible::Value)
        replaceText(0, static_cast<int>(PreteChamp().text().size()), texte); // hidden or not
    else
        QAccessibleWidget::setText(nature, texte);
}

QAccessible::State ChampJetonableAccessible::state() const
{
    QAccessible::State etat = QAccessibleWidget::state();
    etat.editable = true;
    etat.readOnly = PreteChamp().isReadOnly();
    etat.selectableText = !PreteChamp().UnJetonEstActif();
    return etat;
}

void * ChampJetonableAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

void ChampJetonableAccessible::selection(int index, int * debut, int * fin) const
{
    bool const donnee = index == 0 && PreteChamp().hasSelectedText();
    *debut = donnee ? PreteChamp().selectionStart() : 0;
    *fin = donnee ? PreteChamp().selectionEnd() : 0;
}

int ChampJetonableAccessible::selectionCount() const
{
    return PreteChamp().hasSelectedText() ? 1 : 0;
}

void ChampJetonableAccessible::addSelection(int debut, int fin)
{
    setSelection(0, debut, fin);
}

void ChampJetonableAccessible::removeSelection(int index)
{
    if (index == 0)
        PreteChamp().deselect();
}

void ChampJetonableAccessible::setSelection(int index, int debut, int fin)
{
    if (index == 0)
        PreteChamp().setSelection(debut, fin - debut);
}

int ChampJetonableAccessible::cursorPosition() const
{
    return PreteChamp().cursorPosition();
}

void ChampJetonableAccessible::setCursorPosition(int position)
{
    PreteChamp().setCursorPosition(position);
}

QString ChampJetonableAccessible::text(int debut, int fin) const
{
    return debut < fin ? DonneTexteLu().mid(debut, fin - debut) : QString();
}

int ChampJetonableAccessible::characterCount() const
{
    return static_cast<int>(DonneTexteLu().size());
}

QRect ChampJetonableAccessible::characterRect(int position) const
{
    QString const lettre = text(position, position + 1);
    if (lettre.isEmpty())
        return {};
    DLineEditJetonable const & champ = PreteChamp();
    QString const texte = DonneTexteLu();
    if (champ.UnJetonEstActif()) {
        QFontMetrics const mesures(champ.DonnePoliceJeton());
        QRect const bloc = champ.DonneBlocJeton();
        QPoint const coin(bloc.left() + mesures.horizontalAdvance(texte.left(position)),
                          bloc.top());
        return {champ.mapToGlobal(coin), QSize(mesures.horizontalAdvance(lettre), bloc.height())};
    }
    QFontMetrics const mesures(champ.font());
    // The caret is in the middle of this, with room on both sides.
    QRect const curseur = champ.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    int const avance = mesures.horizontalAdvance(texte.left(position)) -
                       mesures.horizontalAdvance(texte.left(cursorPosition()));
    QPoint const coin(curseur.center().x() + avance, curseur.top());
    return {champ.mapToGlobal(coin), QSize(mesures.horizontalAdvance(lettre), curseur.height())};
}

int ChampJetonableAccessible::offsetAtPoint(QPoint const & point) const
{
    return PreteChamp().cursorPositionAt(PreteChamp().mapFromGlobal(point));
}

void ChampJetonableAccessible::scrollToSubstring(int debut, int fin)
{
    PreteChamp().setCursorPosition(fin);
    PreteChamp().setCursorPosition(debut);
}

QString ChampJetonableAccessible::attributes(int position, int * debut, int * fin) const
{
    *debut = *fin = position; // a line edit has none
    return {};
}

void ChampJetonableAccessible::deleteText(int debut, int fin)
{
    replaceText(debut, fin, QString());
}

void ChampJetonableAccessible::insertText(int position, QString const & texte)
{
    replaceText(position, position, texte);
}

void ChampJetonableAccessible::replaceText(int debut, int fin, QString const & texte)
{
    DLineEditJetonable & champ = PreteChamp();
    if (champ.isReadOnly())
        return;
    if (!champ.UnJetonEstActif())
        champ.setText(champ.text().replace(debut, std::max(0, fin - debut), texte));
    else if (texte.isEmpty())
        champ.MetsJetonActif(false);
    else
        champ.setText(texte);
}

DLineEditJetonable & ChampJetonableAccessible::PreteChamp() const
{
    return *static_cast<DLineEditJetonable *>(widget());
}

QString ChampJetonableAccessible::DonneTexteLu() const
{
    DLineEditJetonable const & champ = PreteChamp();
    if (champ.UnJetonEstActif())
        return champ.DonneTexteJeton();
    return champ.displayText(); // a password is not read out
}
