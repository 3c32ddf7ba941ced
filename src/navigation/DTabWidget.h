// navigation/DTabWidget.h
#pragma once

#include "FabrelGuiExport.h"

#include <QFrame>
#include <QIcon>
#include <QList>
#include <QPointer>
#include <QVariant>

class DTabBar;
class DTabBarInterne;
class QStackedWidget;
class QVBoxLayout;

/// Pages under a bar of tabs of one width, with an "add" button behind them and a row for widgets
/// that all pages share. A tab can be dragged into another `DTabWidget` of the same group.
///
/// It never closes a tab, creates a page or opens a window by itself: it asks its host by signals.
/// Pages belong to it as long as they have a tab. A page that is deleted, or taken into another
/// parent, takes its tab along; the signals of this follow when the event loop runs. Indices start
/// at 0; every operation on a tab that does not exist does nothing and answers empty. Receivers of
/// its signals may change its tabs and delete it.
class FABRELGUI_EXPORT DTabWidget : public QFrame
{
    Q_OBJECT

public:
    /// Tabs move only between widgets of equal `identifiantGroupe`.
    DTabWidget(QWidget * parent, QString identifiantGroupe);
    ~DTabWidget() override;

    /// Adds a page at the end and returns its index. The first page becomes the current one. A tab
    /// that the page has already, here or in another widget, is taken away first. Returns -1 for
    /// null, and when a receiver of the signals has taken the page away.
    int AjouteOnglet(QWidget * page, QString titre);
    /// The same at a place; at the end for an index that is negative or past it.
    void InsereOnglet(QWidget * page, int index, QString titre);
    /// Takes the tab away. The page lives on, hidden: it is the caller's to give another parent.
    void RetireOnglet(int index);

    /// Adds a widget to those between the bar and the pages, in the order of their addition.
    void AjouteWidgetCommun(QWidget * widget);
    void AfficheBarreOnglets();
    void CacheBarreOnglets();
    void CacheAjoutOnglet();

    int DonneIndexCourant() const;
    int DonneTotalOnglet() const;
    QWidget * DonneWidget(int index) const;
    QWidget * DonneWidgetCourant() const;
    QString DonneTitre(int index) const;
    QIcon DonneIconeOnglet(int index) const;
    /// What the host has stored for that tab under `cle`; invalid if nothing was.
    QVariant DonneDataOnglet(int index, int cle) const;
    void MetsDataOnglet(int index, QVariant const & donnee, int cle);
    /// The size of the bar of tabs, in spite of the name.
    QSize DonneTailleBoutonAjout() const;
    /// The style's until it is set; the icons themselves begin with 20 by 20 logical pixels.
    QSize DonneTailleIcone() const;
    void MetsTailleIcone(QSize const & taille);
    /// A null icon takes no room.
    void MetsIconeOnglet(int index, QIcon const & icone);
    void MetsIndexCourant(int index);
    /// Whether a tab may be dragged out of the bar; not in a new widget.
    void MetsPeutGlisserDeposerOnglet(bool peut);
    /// The width of every tab, in pixels.
    void MetsTailleOnglets(int largeur);
    /// The title, which is also the tool tip.
    void MetsTexteOnglet(int index, QString texte);

    DTabBar * PreteBarre() const;
    /// Moves a tab as a drag into the bar of `cible` does. False, and nothing done, for null, for
    /// itself, for another group, for a tab that does not exist, and for a page that holds `cible`.
    bool EnvoieOnglet(int index, DTabWidget * cible, int position);
    /// Makes the tab current and asks the host for a window, as a drop outside any bar does.
    void DetacheOnglet(int index);

Q_SIGNALS:
    /// The add button was clicked; the host adds a page.
    void SignalAjouteOnglet();
    /// The close button was clicked, or the middle button over a tab; the host calls
    /// `RetireOnglet`. -1 for the middle button beside the tabs.
    void SignalDemandeFermetureOnglet(int index);
    /// After the active tab, or its index, has changed; -1 after the last one has gone.
    void SignalOngletCourantChangay(int index);
    /// A tab has moved within the bar, and its page has followed.
    void SignalOngletDeplacay(int de, int vers);
    /// A page has moved to another widget; emitted by the one that it has left.
    void SignalOngletDeplacayVersBarreExterne(int indexOriginal, int positionAjout,
                                              DTabWidget * barreExterne);
    /// A tab was dropped outside any bar of the group: the host may take the page into a window.
    void SignalOngletNouvelleFenetre(int index, QWidget * page);

protected:
    void changeEvent(QEvent * evenement) override;
    bool eventFilter(QObject * objet, QEvent * evenement) override;

private Q_SLOTS:
    void PriseDeplaceOngletVersBarreExterne(int index, QWidget * barre, int position);
    void PriseNouvelleFenetreOngletExistant();
    void PriseOngletChangay(int index);
    void PriseOngletDeplacay(int de, int vers);
    void PriseBoutonFermeture();
    void PrisePageRetiree(int index);

private:
    // What the host is still to hear: of a tab that has moved, or else of the current one.
    struct Annonce
    {
        bool deplacement;
        int de;
        int vers;
    };

    static DTabWidget * TrouveDepuis(QWidget * widget);
    static bool Contient(QWidget const * page, QWidget const * widget);

    DTabBarInterne * PreteBarreInterne() const;
    void Branche();
    int PoseOnglet(QWidget * page, int position);
    void AjouteBoutonFermeture(int index);
    void NommeBoutonsFermeture();
    void RetireDeLaPile(QWidget * page);
    void RetireDeLaBarre(int index);
    void MontreActif(int index, bool actif);
    void GriseTitresNeufs(int indexActif);
    void ActualiseCouleurs();
    void Publie(Annonce const & annonce);
    void Diffuse();

    DTabBar * monBarre = nullptr;
    QStackedWidget * maPile = nullptr;
    QVBoxLayout * monLayout = nullptr;
    int monIndexPrecedent = -1; // of the tab that has the active colours; follows it
    QIcon monIconeFermeture;
    int monNombreWidgetsCommuns = 0;

    QList<QPointer<QWidget>> mesPagesNeuves; // since the last change of tab; some may have gone
    QList<Annonce> mesAnnonces;              // held back amid a change
    int mesRetenues = 0;
    int mesEmissions = 0;           // signals that are being delivered
    bool monRetraitEnCours = false; // a page leaves the pile by our own hand
};
