// galerie/ApercuFenetre.h
#pragma once

#include <QPixmap>
#include <QPointer>
#include <QWidget>

/// A picture of a window that is closed: what the user will see when it opens.
///
/// It is taken anew each time that the window closes.
class ApercuFenetre : public QWidget
{
    Q_OBJECT

public:
    /// `nom` is for screen readers. The window remains its owner's.
    ApercuFenetre(QString const & nom, QWidget & fenetre, QWidget * parent = nullptr);

    /// Takes the picture of the window as it is now.
    void Actualise();

protected:
    bool eventFilter(QObject * objet, QEvent * evenement) override;
    void paintEvent(QPaintEvent * evenement) override;

private:
    QPointer<QWidget> maFenetre;
    QPixmap monImage;
};
