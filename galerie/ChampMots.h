// galerie/ChampMots.h
#pragma once

#include "lists/InterfaceUtilisantListeChoixFlottante.h"

#include <QLineEdit>

#include <memory>

class ListeChoixFlottante;
class MotsFrancais;
class QStandardItem;

/// A field that proposes words in a floating list while one types.
///
/// The arrows and Return choose in the list while the focus stays in the field; Return without a
/// list takes what was typed. The last row tells how many words more there are, and brings some of
/// them when it is clicked.
class ChampMots : public QLineEdit
{
    Q_OBJECT

public:
    /// `mots` must outlive the field.
    explicit ChampMots(MotsFrancais & mots, QWidget * parent = nullptr);
    ~ChampMots() override;

    ListeChoixFlottante & PreteListe() const { return *maListe; }
    /// Gives the closed list what it would propose for `debut`, for a picture of it.
    void PreparePourApercu(QString const & debut);

    /// Follows the window of the field.
    bool eventFilter(QObject * objet, QEvent * evenement) override;

Q_SIGNALS:
    void SignalMotChoisi(QString const & mot);

protected:
    void showEvent(QShowEvent * evenement) override;
    void focusOutEvent(QFocusEvent * evenement) override;

private:
    void Branche();
    void Propose(QString const & debut, int combien);
    void PriseTexteEditay(QString const & texte);
    void PriseSelection(QList<std::shared_ptr<QStandardItem>> const & items);
    void PriseRetour();

    MotsFrancais & mesMots;
    InterfaceUtilisantListeChoixFlottante monInterface;
    std::unique_ptr<ListeChoixFlottante> maListe; // a window, which belongs to no other widget
};
