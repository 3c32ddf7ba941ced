// lists/VueDesChoix_p.h
#pragma once

#include <QTreeView>

/// The view of a floating list of choices: a bare list of rows, driven without the focus, with dark
/// text for the white ground of the list.
class VueDesChoix : public QTreeView
{
    Q_OBJECT

public:
    explicit VueDesChoix(QWidget * parent);

    /// Gives each column the width of its contents; returns the size of the widest row and of the
    /// whole, in pixels.
    QSize DisposeColonnes();

    void scrollTo(QModelIndex const & index, ScrollHint maniere) override;

protected:
    void keyPressEvent(QKeyEvent * touche) override;
};
