// lists/ToolTipComboBox.h
#pragma once

#include "FabrelGuiExport.h"

#include "controls/DMenuAction.h"

#include <QVariant>

#include <map>

class QComboBox;
class QPushButton;
class QResizeEvent;
class QVBoxLayout;

/// The pop-up of a filter bar: one labelled combo box per filter and a button that turns all
/// filters off. A filter is off while its combo box is at index 0.
class FABRELGUI_EXPORT ToolTipComboBox : public DMenuAction
{
    Q_OBJECT

public:
    explicit ToolTipComboBox(QWidget * parent = nullptr);
    ~ToolTipComboBox() override;

    /// Adds a row above the button. The combo box comes to stand in the pop-up, which takes it
    /// along when it goes; its owner may delete it before. One that is there under this id already
    /// is hidden, and tells of nothing any more. Null is ignored.
    ///
    /// Its index counts from its next change on: the state of the button stays as it is.
    void AjouterComboBox(int id, QString const & libelle, QComboBox * combo);
    void MetsIndexCourantComboBox(int id, int index);
    /// Null for an unknown id, or when the combo box has been deleted.
    QComboBox * PreteComboBox(int id);
    /// The index of the item with these user data, -1 without one.
    int TrouveIndexAvecData(int id, QVariant const & donnees);

Q_SIGNALS:
    void SignalResizeEvent(QResizeEvent * event);
    /// A combo box has another index; `data` are the user data of that item.
    void SignalValeurChanger(int id, int index, QVariant data);
    /// After each `SignalValeurChanger`: whether some combo box is not at index 0. An empty one is
    /// not.
    void SignalFiltreActif(bool filtreActif);

protected:
    void resizeEvent(QResizeEvent * evenement) override;

private Q_SLOTS:
    void PriseMiseAJourBouton();

private:
    void PriseComboDetruit(QObject const * combo);
    void PriseDesactiveFiltres();
    void CreeBouton();
    void PoseRangee(QString const & libelle, QComboBox & combo);
    void RetireRangee(QComboBox & combo);
    void Annonce(int id, QComboBox const & combo);

    QVBoxLayout * monLayoutPrincipal = nullptr;
    // By the id of the filter; null for an unknown one, and once deleted.
    std::map<int, QComboBox *> mesCombos;
    QPushButton * monBoutonDesactiver = nullptr;
};
