// galerie/EssaisStyle.h
#pragma once

#include <QWidget>

class DTreeView;
class QMenu;
class QToolButton;

/// Real widgets in a style of their own, to be used with the mouse and the keys.
class EssaisStyle : public QWidget
{
    Q_OBJECT

public:
    explicit EssaisStyle(QWidget * parent = nullptr);

    /// Gives the style to all of them. It must outlive this, or be replaced before it goes.
    void MetsStyleDesWidgets(QStyle & style);

private:
    QWidget * CreeArbre();
    QWidget * CreeOnglets();
    QWidget * CreeBoutons();
    QWidget * CreeChamps();
};

/// A menu whose items follow the rules of their tags, with or without a check mark.
QMenu * CreeMenuRiche(QWidget * parent);

/// A button that opens a long menu, which scrolls or not.
QWidget * CreeBoutonMenuLong(bool defilant, QWidget * parent);
