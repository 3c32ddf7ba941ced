// dialogs/DDialogueProgressionInfinie.h
#pragma once

#include "FabrelGuiExport.h"

#include <QDialog>

class DorvelWidgetCentrageNatif;
class QAbstractButton;
class QFrame;
class QLabel;
class QProgressBar;
class QTimer;

/// A small window that asks the user to wait: a text, a busy bar without end, a second text and a
/// row of optional buttons. It deletes itself when it closes and gives no answer.
///
/// It is not modal and does not take the focus. The bar moves as long as the event loop turns.
class FABRELGUI_EXPORT DDialogueProgressionInfinie : public QDialog
{
    Q_OBJECT

public:
    /// A null parent gives a free-standing window.
    DDialogueProgressionInfinie(QWidget * parent, QString texte, QString texteSecondaire,
                                QFlags<Qt::WindowType> flags);
    /// A child of the window that `parent` holds for centring, closed by its
    /// `SignalFermerDialogue`.
    DDialogueProgressionInfinie(DorvelWidgetCentrageNatif * parent, QString texte,
                                QString texteSecondaire, QFlags<Qt::WindowType> flags);
    ~DDialogueProgressionInfinie() override;

    /// Adds a button behind the others, which stand at the right; the dialog owns it from then on.
    /// Null does nothing.
    void AjouterBouton(QAbstractButton * bouton);
    /// Like the next one, takes plain or rich text, whichever it looks like.
    void PrendsTexte(QString const & texte);
    void PrendsTexteSecondaire(QString const & texte);

public Q_SLOTS:
    /// Draws the bar anew.
    void PriseRafraichir();
    void PriseFermerDialogue();

protected:
    void showEvent(QShowEvent * evenement) override;
    void paintEvent(QPaintEvent * evenement) override;

private:
    void init(QWidget * parent, QString const & texte, QString const & texteSecondaire);
    void CreeBarre();
    void CreeCadreBoutons();

    QFrame * monCadreBoutons = nullptr;
    QTimer * maMinuterieRafraichir = nullptr;
    QLabel * monTexte = nullptr;
    QLabel * monTexteSecondaire = nullptr;
    QProgressBar * maBarre = nullptr;
};
