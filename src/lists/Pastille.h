// lists/Pastille.h
#pragma once

#include "FabrelGuiExport.h"

#include "lists/IWidgetChevronnable.h"

#include <QColor>
#include <QIcon>
#include <QTimer>
#include <QVariant>

/// A criterion as a small tag, with a cross that asks for its removal.
///
/// The pill only asks, with `PastilleASupprimer`: whoever knows the criterion takes the pill away
/// with `Supprime`. Only the left button works the cross, and a press that is held for more than 5
/// seconds asks for nothing. Tab leads to the pill, a click does not; Delete, Backspace, Return,
/// Enter and Space ask for the removal.
///
/// The application supplies the two images of the cross, ":/Images/boutonSupprimerPastille.svg" and
/// ":/Images/boutonSupprimerPastilleHover.svg" for the mouse over it. Without them it is not seen,
/// but works.
class FABRELGUI_EXPORT Pastille : public IWidgetChevronnable
{
    Q_OBJECT

public:
    /// `donnees` are the key by which the host knows the pill.
    Pastille(QString const & titre, QVariant const & donnees, QWidget * parent = nullptr);
    ~Pastille() override;

    QVariant DonneData() const;
    /// Where the cross is.
    QRect DonneRectBoutonSupprimer() const;
    /// Deletes the pill, once its signal has been delivered when it is emitting it.
    void Supprime();

    QAction * DonneQAction() override;
    /// What choosing the pill does: "Enlever «title»".
    QString DonneTitre() override;
    QSize DonneTailleMin() override;
    QSize DonneTailleMax() override;
    bool EstUneAction() override;

    QSize sizeHint() const override;

Q_SIGNALS:
    void PastilleASupprimer(QVariant data);

protected Q_SLOTS:
    void PriseExecuteAction() override;

protected:
    void changeEvent(QEvent * evenement) override;
    void keyPressEvent(QKeyEvent * evenement) override;
    void leaveEvent(QEvent * evenement) override;
    void mouseMoveEvent(QMouseEvent * evenement) override;
    void mousePressEvent(QMouseEvent * evenement) override;
    void mouseReleaseEvent(QMouseEvent * evenement) override;
    void paintEvent(QPaintEvent * evenement) override;

private:
    void PrisePressionTropLongue();
    QIcon const & PreteIcone();
    void MetsSurvol(bool survole);

    QString monTitre;
    QVariant mesDonnees;
    // Logical pixels.
    int maMargeGauche = 5;  // of the text
    int maMargeHaut = 0;    // of the text
    int maMargeDroite = 5;  // of the cross
    int maMargeBas = 0;     // of the text
    int monEspacement = 10; // between the text and the cross
    int maTailleBouton = 8;
    bool monBoutonEnfonce = false; // the press began on the cross
    QColor maCouleur;
    bool monSurvol = false; // the mouse is over the cross

    QTimer monDelai; // of the press
    int mesEmissions = 0;
    QIcon monIcone;
    QIcon monIconeSurvol;
    mutable QSize maTailleTexte; // invalid until it is measured
};
