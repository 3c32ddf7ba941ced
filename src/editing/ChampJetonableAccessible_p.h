// editing/ChampJetonableAccessible_p.h
#pragma once

#include <QAccessibleWidget>

class DLineEditJetonable;

/// How a screen reader sees the field of a `DComboJetonable`: as a line edit, whose text is that of
/// the token while there is one.
///
/// The caret stands before a token, in which nothing can be selected. What a reader changes in it
/// replaces it as a whole.
class ChampJetonableAccessible : public QAccessibleWidget,
                                 public QAccessibleTextInterface,
                                 public QAccessibleEditableTextInterface
{
public:
    explicit ChampJetonableAccessible(DLineEditJetonable * champ);

    QString text(QAccessible::Text nature) const override;
    void setText(QAccessible::Text nature, QString const & texte) override;
    QAccessible::State state() const override;
    void * interface_cast(QAccessible::InterfaceType type) override;

    void selection(int index, int * debut, int * fin) const override;
    int selectionCount() const override;
    void addSelection(int debut, int fin) override;
    void removeSelection(int index) override;
    void setSelection(int index, int debut, int fin) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int debut, int fin) const override;
    int characterCount() const override;
    QRect characterRect(int position) const override;
    int offsetAtPoint(QPoint const & point) const override;
    void scrollToSubstring(int debut, int fin) override;
    QString attributes(int position, int * debut, int * fin) const override;

    void deleteText(int debut, int fin) override;
    void insertText(int position, QString const & texte) override;
    void replaceText(int debut, int fin, QString const & texte) override;

private:
    DLineEditJetonable & PreteChamp() const;
    QString DonneTexteLu() const;
};
