// galerie/GestesJoues.h
#pragma once

#include <QObject>

#include <memory>

class QAbstractScrollArea;
class QPointingDevice;
class QVariantAnimation;
class QWidget;

/// Plays a finger or a pen, for those whose computer has neither.
///
/// What a finger does needs a window that is shown; there is nothing to be seen otherwise.
class GestesJoues : public QObject
{
    Q_OBJECT

public:
    explicit GestesJoues(QObject * parent = nullptr);
    ~GestesJoues() override;

    /// Taps in the middle of `cible`. Nothing while a finger is on its way.
    void Touche(QWidget & cible, int fois);

    /// Moves a finger up on `cible`, in the time of a flick, and returns at once. Nothing while one
    /// is on its way.
    void Glisse(QWidget & cible);

    /// Two fingers on `cible`, in some steps of that factor each.
    void Pince(QWidget & cible, double facteur);

    /// Presses a pen in the middle of `cible`, moves it a little and lifts it.
    void PoseStylet(QWidget & cible);

    /// Puts a finger on `aire`, drags, stands still and leaves, whether the window is shown or not,
    /// and without waiting. The area must not be in another one that scrolls by finger.
    void Entraine(QAbstractScrollArea & aire);

private:
    class Doigt;

    void AvanceDoigt(int ordonnee);
    void LeveDoigt();

    std::unique_ptr<Doigt> monDoigt; // null when it is not on its way
    QVariantAnimation * monTrajet = nullptr;
    int monAbscisse = 0; // in the window
    QPointingDevice * monStylet = nullptr;
};
