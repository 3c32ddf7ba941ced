// galerie/ApercuFenetre.h
#pragma once

#include <QPixmap>
#include <QPointer>
#include <QWidget>

#include <functional>

/// A picture of a window that is closed: what the user will see when it opens.
///
/// It is taken anew, in the size that the window then asks for, when the window has closed, when
/// style, palette or font have changed, and once when the events that wait are done: what is built
/// around the picture may have put other values into the window by then.
class ApercuFenetre : public QWidget
{
    Q_OBJECT

public:
    /// `nom` is for screen readers. The window remains its owner's. `mesure` tells its size, for a
    /// window that does not ask for the one that it opens with.
    ApercuFenetre(QString const & nom, QWidget & fenetre, std::function<QSize()> mesure = {},
                  QWidget * parent = nullptr);

    /// Takes the picture of the window as it is now, after giving it its size unless it is open.
    void Actualise();

protected:
    bool eventFilter(QObject * objet, QEvent * evenement) override;
    void changeEvent(QEvent * evenement) override;
    void paintEvent(QPaintEvent * evenement) override;

private:
    void DemandeImage();
    void AjusteFenetre();

    QPointer<QWidget> maFenetre;
    std::function<QSize()> maMesure;
    bool monAttente = false; // for a picture that has been asked for
    QPixmap monImage;
};
