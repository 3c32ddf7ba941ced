// editing/DLineEditJetonable_p.h
#pragma once

#include <QFont>
#include <QLineEdit>
#include <QPoint>
#include <QRect>
#include <QString>

/// The field of a `DComboJetonable`: it holds free text or one token, never both.
///
/// The token is a block of colour with a text that cannot be edited. Whatever brings a text brings
/// the token to an end: a key press, an input method, a paste, and `setText` of the host too.
class DLineEditJetonable : public QLineEdit
{
    Q_OBJECT

public:
    explicit DLineEditJetonable(QWidget * parent = nullptr);
    ~DLineEditJetonable() override;

    /// Shows the token that was last given, in place of the free text, or ends it. The text goes
    /// without `textChanged`.
    void MetsJetonActif(bool actif);
    void PrendsTexteJeton(QString const & texte, QString const & infobulle);
    /// What `police` leaves open comes from the font of the field.
    void PrendsPoliceJeton(QFont const & police);
    bool UnJetonEstActif() const;
    /// With what it leaves open from the font of the field.
    QFont DonnePoliceJeton() const;
    /// Where the token is painted while one is on.
    QRect DonneBlocJeton() const;
    /// Empty while no token is on.
    QString DonneTexteJeton() const;

Q_SIGNALS:
    /// A token came, was replaced or went.
    void SignalJetonChangay();
    /// The left button was released on the field, which has not handled it yet.
    void SignalRelachementGauche();

protected:
    bool event(QEvent * evenement) override;
    void keyPressEvent(QKeyEvent * evenement) override;
    void inputMethodEvent(QInputMethodEvent * evenement) override;
    void focusInEvent(QFocusEvent * evenement) override;
    void enterEvent(QEnterEvent * evenement) override;
    void leaveEvent(QEvent * evenement) override;
    void mouseMoveEvent(QMouseEvent * evenement) override;
    void mouseReleaseEvent(QMouseEvent * evenement) override;
    void paintEvent(QPaintEvent * evenement) override;

private:
    void PriseTexteEditay();
    void PriseTexteChangay();
    bool TermineJeton();
    void MetsInfobulle(QString const & infobulle);
    void MetsPositionSouris(QPoint const & position);
    QRect DonneZoneTexte() const;
    QString DonneTexteAbregay() const;
    void DessineJeton(QPainter & peintre) const;

    bool monJetonActif = false;
    bool maSelectionEnAttente = false; // of all the text, by the release of the click that comes
    QString monTexteJeton;
    QFont maPoliceJeton;
    QPoint maPositionSouris = QPoint(-1, -1);
};
