// navigation/DTabBarInterne.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/UniChaine.h"

#include <QIcon>
#include <QMap>
#include <QMetaType>
#include <QPointer>
#include <QTabBar>
#include <QVariant>

#include <memory>

class DLabelElision;
class DTabBar;
class FantomeOnglet;
class QFrame;
class QLabel;

/// The tabs of a `DTabBar`, all of the same width; a tab can be dragged out of its bar.
///
/// The drag is one press, move and release of the mouse, without Qt's drag and drop. A translucent
/// picture of the tab follows the mouse. Released over a bar of the same group, the tab is offered
/// to that bar; elsewhere, a new window is asked for: the owner moves the page and the tab. Back in
/// its own bar, by Escape, or once the bar cannot go on (hidden, disabled, the tab removed, the
/// mouse taken away by another widget), the drag ends and nothing has moved.
///
/// The texts and icons that Qt knows of stay empty: each tab has a frame with both on its left
/// side. Receivers of the signals may change the tabs and delete the bar.
class FABRELGUI_EXPORT DTabBarInterne : public QTabBar
{
    Q_OBJECT

public:
    /// What each tab keeps as its `tabData`.
    struct InfosOnglet
    {
        QIcon icone;
        UniChaine titre; ///< in full
        QLabel * etiquetteIcone = nullptr;
        DLabelElision * etiquetteTitre = nullptr;
        QFrame * cadre = nullptr;    ///< with both labels: the left button of the tab
        QMap<int, QVariant> donnees; ///< of the host, by key
    };

    DTabBarInterne(DTabBar * parent, UniChaine identifiantGroupe);
    ~DTabBarInterne() override;

    UniChaine DonneIdentifiantGroupe() const { return monIdentifiantGroupe; }

    /// `insertTab` of a tab without text, and `setTabButton`, for the owner who adds many: while
    /// the bar is hidden, they lay the other tabs out roughly, as `show` does it anew.
    int InsereOngletVide(int index);
    void PoseBouton(int index, ButtonPosition cote, QWidget * bouton);

    /// Qt's, which must not be called while Qt slides tabs aside for one that is being moved.
    void removeTab(int index);

    /// Gives a tab that was just added its frame and its record.
    void CreeCadreOnglet(int index);
    /// An empty record for a tab without one, and out of range.
    InfosOnglet DonneInfos(int index) const;
    /// Only stores: the labels stay as they are.
    void MetsInfos(int index, InfosOnglet const & infos);
    /// Also the accessible name of the tab; its tool tip stays as it is.
    void MetsTitreOnglet(int index, UniChaine const & titre);
    /// A null icon hides the label.
    void MetsIconeOnglet(int index, QIcon const & icone);
    /// Draws the title as that of the active tab, or of another one.
    void MetsCouleurTitre(int index, bool actif);
    /// Fits frame and title into the room that the tab has for them.
    void AjusteLargeurTitre(int index);

    /// Whether tabs can be dragged out of the bar; not at first. Ends a drag that is under way.
    void MetsPeutGlisserDeposer(bool peut);
    /// The width of every tab, in logical pixels; 185 at first.
    void MetsTailleOnglets(int largeur);
    /// `setIconSize` for the labels too, which are 20 by 20 until then.
    void MetsTailleIcone(QSize const & taille);

    /// True while a tab is outside of this bar.
    bool EstEnDeplacementExterne() const { return monDeplacementExterne; }
    /// Where a tab of another bar would go, in this bar's coordinates; null without such a tab.
    QPoint DonnePositionIndicateur() const { return maPositionIndicateur; }

Q_SIGNALS:
    /// The tab at `index` was dropped on the bar `barre`, to stand at `position` there.
    void SignalAjouteOngletBarreExterne(int index, QWidget * barre, int position);
    /// The tab was dropped elsewhere.
    void SignalOngletNouvelleFenetre();
    /// For hosts: the bar never emits it.
    void SignalArretBarreExterneSurvolay();

protected:
    bool eventFilter(QObject * objet, QEvent * evenement) override;
    void mousePressEvent(QMouseEvent * evenement) override;
    void mouseReleaseEvent(QMouseEvent * evenement) override;
    void mouseMoveEvent(QMouseEvent * evenement) override;
    void keyPressEvent(QKeyEvent * evenement) override;
    void paintEvent(QPaintEvent * evenement) override;
    void showEvent(QShowEvent * evenement) override;
    void hideEvent(QHideEvent * evenement) override;
    void changeEvent(QEvent * evenement) override;
    void initStyleOption(QStyleOptionTab * option, int index) const override;
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;
    void tabLayoutChange() override;

private Q_SLOTS:
    void PriseOngletDeplacay(int de, int vers);

private:
    // The tabs' frames.
    void CreeEtiquettes(InfosOnglet & infos);
    int DonneLargeurCadre(int index) const;
    void MetsLargeurCadre(int index, InfosOnglet const & infos);
    void AjusteLargeursCadres();
    void RefaisMiseEnPage();
    void MetsPixmapIcone(InfosOnglet const & infos);

    // The drag.
    bool EstHorsDeLaBarre(QPoint const & position) const;
    void DeplaceHorsDeLaBarre(QPoint const & positionGlobale);
    void CommenceDeplacement();
    void TermineDeplacement();
    void AbandonneDeplacement();
    void AbandonneDeplacementQt();
    void RemetsOnglet();
    void MontreFantome(QPoint const & positionGlobale);
    DTabBarInterne * TrouveBarreSous(QPoint const & positionGlobale) const;
    void VisePositionDans(DTabBarInterne & barre, QPoint const & positionGlobale);
    void VideCible();
    void Depose();
    bool MetFinAuDeplacement(QObject const * objet, QEvent const & evenement) const;

    UniChaine monIdentifiantGroupe;
    int monIndexDeplace = 0;
    bool monDeplacementExterne = false;
    bool monPeutGlisserDeposer = false;
    int monIndexCible = -1;
    QPoint maPositionIndicateur;
    QPointer<DTabBarInterne> maBarreCible;
    QString monInfobulleSauvee;
    int maLargeurOnglet = 185; // logical pixels, as the next one
    QSize maTailleIcone{20, 20};
    std::unique_ptr<FantomeOnglet> const monFantome;
    bool monDeplacementPermis = true;  // from the press on a tab to the end of its drag
    bool monLayoutEstSommaire = false; // its positions serve until the bar is shown
};

Q_DECLARE_METATYPE(DTabBarInterne::InfosOnglet)
