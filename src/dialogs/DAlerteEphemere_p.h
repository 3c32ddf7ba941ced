// dialogs/DAlerteEphemere_p.h
#pragma once

#include "FabrelGuiExport.h"

#include <QPixmap>
#include <QWidget>

#include <optional>

class DAlerteInfo;
class QGridLayout;
class QLabel;
class QTimer;

/// How long a bubble stays and how it fades.
namespace RoutinesBulle {

constexpr double kOpacite = 0.9; // of a bubble that does not fade yet

/// The display time in milliseconds from `DAlerteInfo::dureeAffichage`. -1 and what is not a number
/// stand for the usual time; below 0 the bubble fades at once, and no time is too long.
FABRELGUI_EXPORT int DonneDureeAffichage(float secondes);

/// The opacity `ecoule` milliseconds after the start of the fade; none once the bubble is gone.
FABRELGUI_EXPORT std::optional<double> DonneOpacite(quint64 ecoule);

} // namespace RoutinesBulle

/// The bubble of an alert without buttons; at most one exists. It never takes the focus, fades
/// after a while and deletes itself; the parent owns it until then.
///
/// CAUTION: the text is NOT escaped. Whatever of the message or of the explanation looks like
/// mark-up is rendered as rich text, images and links of a foreign text too: the caller escapes
/// (`QString::toHtmlEscaped`) what it did not write itself.
class FABRELGUI_EXPORT DAlerteEphemere : public QWidget
{
    Q_OBJECT

public:
    /// Shows the alert, at once in the place of the one before. A null pixmap gives a bubble with
    /// the text only, and without a parent it stands on the screen with the mouse.
    static void Affiche(QWidget * parent, DAlerteInfo const & info, QPixmap pixmap);

    ~DAlerteEphemere() override;

protected:
    void paintEvent(QPaintEvent * evenement) override;

private Q_SLOTS:
    void PriseFinAffichageOpaque();
    void PriseAnimationFade();

private:
    DAlerteEphemere(QWidget * parent, QString const & message, QString const & explication,
                    QPixmap const & pixmap, int duree);

    void CreeContenu(QString const & texte, QPixmap const & pixmap);
    void CreeMinuteries(int duree);
    void AnnonceAuxLecteursDEcran();

    static DAlerteEphemere * alerteCourante; // the one that exists, or null

    QGridLayout * maDisposition = nullptr;
    QLabel * monTexte = nullptr;
    quint64 debutFade = 0; // ms, of the monotonic clock
    QTimer * maMinuterieAffichage = nullptr;
    QTimer * maMinuterieFade = nullptr;
};
