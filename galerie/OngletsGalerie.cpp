// galerie/OngletsGalerie.cpp
#include "OngletsGalerie.h"

#include "CadrePage.h"
#include "Pages.h"

#include "foundation/TraductionGui.h"
#include "navigation/DTabBar.h"
#include "navigation/DTabBarInterne.h"

#include <QContextMenuEvent>
#include <QPushButton>
#include <QShortcut>

using namespace Qt::StringLiterals;

OngletsGalerie::OngletsGalerie(QWidget * parent)
    : DTabWidget(parent, u"galerie"_s)
{
    MetsPeutGlisserDeposerOnglet(true);
    PreteBarre()->PreteBarreInterne()->installEventFilter(this);
    struct
    {
        QKeySequence::StandardKey touche;
        void (OngletsGalerie::*prise)();
    } const raccourcis[] = {
        {QKeySequence::NextChild, &OngletsGalerie::PriseSuivant},
        {QKeySequence::PreviousChild, &OngletsGalerie::PrisePrecedent},
        {QKeySequence::Close, &OngletsGalerie::PriseFermer},
    };
    for (auto const & [touche, prise] : raccourcis) {
        auto * const raccourci = new QShortcut(touche, this);
        connect(raccourci, &QShortcut::activated, this, prise, Qt::UniqueConnection);
    }
}

CadrePage * OngletsGalerie::PreteCadre(int index)
{
    return qobject_cast<CadrePage *>(DonneWidget(index));
}

CadrePage * OngletsGalerie::PreteCadreCourant()
{
    return PreteCadre(DonneIndexCourant());
}

int OngletsGalerie::TrouvePage(int page)
{
    for (int i = 0; i < DonneTotalOnglet(); ++i)
        if (PreteCadre(i)->DonnePage() == page)
            return i;
    return -1;
}

void OngletsGalerie::AjouteCadre(CadrePage & cadre)
{
    HabilleOnglet(AjouteOnglet(&cadre, cadre.DonneTitre()));
}

void OngletsGalerie::Habille()
{
    for (int i = 0; i < DonneTotalOnglet(); ++i)
        HabilleOnglet(i);
    PreteBarre()->PreteBoutonAjout()->setAccessibleName(
        TraductionGui(TexteGui("Ajouter un onglet")));
}

void OngletsGalerie::MetsAjout(bool possible)
{
    PreteBarre()->PreteBoutonAjout()->setVisible(possible);
}

QPoint OngletsGalerie::DonneOrigineMenu(int index) const
{
    QTabBar const & barre = *PreteBarre()->PreteBarreInterne();
    // The tab may have been scrolled out of the bar.
    return barre.mapToGlobal(barre.tabRect(index).intersected(barre.rect()).bottomLeft());
}

bool OngletsGalerie::event(QEvent * evenement)
{
    if (evenement->type() == QEvent::WindowActivate)
        Q_EMIT SignalActivay();
    return DTabWidget::event(evenement);
}

bool OngletsGalerie::eventFilter(QObject * objet, QEvent * evenement)
{
    if (evenement->type() != QEvent::ContextMenu)
        return DTabWidget::eventFilter(objet, evenement);
    auto const & demande = *static_cast<QContextMenuEvent *>(evenement);
    QTabBar const & barre = *PreteBarre()->PreteBarreInterne();
    // The place that comes with a key is the middle of what has the focus: one of the close buttons
    // means its own tab, the bar the current one.
    bool const auClavier = demande.reason() == QContextMenuEvent::Keyboard;
    int const index =
        auClavier && barre.hasFocus() ? barre.currentIndex() : barre.tabAt(demande.pos());
    if (index >= 0)
        Q_EMIT SignalMenuOnglet(index, auClavier ? DonneOrigineMenu(index) : demande.globalPos());
    return true;
}

void OngletsGalerie::PriseSuivant()
{
    Tourne(1);
}

void OngletsGalerie::PrisePrecedent()
{
    Tourne(-1);
}

void OngletsGalerie::PriseFermer()
{
    if (DonneTotalOnglet() > 0)
        Q_EMIT SignalDemandeFermetureOnglet(DonneIndexCourant());
}

void OngletsGalerie::HabilleOnglet(int index)
{
    CadrePage const & cadre = *PreteCadre(index);
    MetsTexteOnglet(index, cadre.DonneTitre());
    MetsIconeOnglet(index, CreeIconePage(DonnePages().at(cadre.DonnePage())));
    DTabBarInterne & barre = *PreteBarre()->PreteBarreInterne();
    barre.MetsCouleurTitre(index, index == barre.currentIndex());
    if (QWidget * const bouton = barre.tabButton(index, QTabBar::RightSide))
        bouton->setAccessibleName(TraductionGui(TexteGui("Fermer l'onglet")));
}

void OngletsGalerie::Tourne(int pas)
{
    if (int const nombre = DonneTotalOnglet(); nombre > 0)
        MetsIndexCourant((DonneIndexCourant() + pas + nombre) % nombre);
}
