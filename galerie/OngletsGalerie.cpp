// galerie/OngletsGalerie.cpp
#include "OngletsGalerie.h"

#include "CadrePage.h"
#include "Pages.h"

#include "foundation/ThemesQt.h"
#include "navigation/DTabBar.h"
#include "navigation/DTabBarInterne.h"

#include <QContextMenuEvent>
#include <QLayout>
#include <QPushButton>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kFeuilleLigne =
    u"QFrame { border-bottom-width: 1px; border-style: solid; border-color: @couleurSeparateur; }";

} // namespace

OngletsGalerie::OngletsGalerie(QWidget * parent)
    : DTabWidget(parent, u"galerie"_s)
{
    MetsPeutGlisserDeposerOnglet(true);
    PreteBarre()->PreteBarreInterne()->installEventFilter(this);
    // The row is a pixel higher than the tabs: so the line below them goes on behind the button.
    PreteBarre()->layout()->setAlignment(PreteBarre()->PreteBarreInterne(), Qt::AlignBottom);
    AccordeLigne();
    BrancheClavier();
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
        if (CadrePage const * const cadre = PreteCadre(i); cadre && cadre->DonnePage() == page)
            return i;
    return -1;
}

void OngletsGalerie::AjouteCadre(CadrePage & cadre)
{
    int const index = AjouteOnglet(&cadre, cadre.DonneTitre());
    HabilleOnglet(index);
    // It has the colour of the active one until another tab is chosen: here it waits for that.
    PreteBarre()->PreteBarreInterne()->MetsCouleurTitre(index, index == DonneIndexCourant());
}

void OngletsGalerie::Habille()
{
    for (int i = 0; i < DonneTotalOnglet(); ++i)
        HabilleOnglet(i);
}

void OngletsGalerie::MetsAjout(bool possible)
{
    PreteBarre()->PreteBoutonAjout()->setVisible(possible);
}

bool OngletsGalerie::event(QEvent * evenement)
{
    if (evenement->type() == QEvent::WindowActivate)
        Q_EMIT SignalActivay();
    return DTabWidget::event(evenement);
}

void OngletsGalerie::changeEvent(QEvent * evenement)
{
    DTabWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::StyleChange)
        AccordeLigne();
}

bool OngletsGalerie::eventFilter(QObject * objet, QEvent * evenement)
{
    if (evenement->type() != QEvent::ContextMenu)
        return DTabWidget::eventFilter(objet, evenement);
    auto const & demande = *static_cast<QContextMenuEvent *>(evenement);
    int const index = PreteBarre()->PreteBarreInterne()->tabAt(demande.pos());
    if (demande.reason() == QContextMenuEvent::Keyboard)
        PriseMenuAuClavier();
    else if (index >= 0)
        Q_EMIT SignalMenuOnglet(index, demande.globalPos());
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

void OngletsGalerie::PriseMenuAuClavier()
{
    QTabBar const & barre = *PreteBarre()->PreteBarreInterne();
    int index = barre.currentIndex();
    // On a close button it is the menu of that tab.
    if (QWidget const * const foyer = barre.focusWidget(); foyer != nullptr && foyer != &barre)
        index = barre.tabAt(foyer->mapTo(&barre, foyer->rect().center()));
    if (index < 0)
        return;
    // The tab may have been scrolled out of the bar.
    QRect const onglet = barre.tabRect(index).intersected(barre.rect());
    Q_EMIT SignalMenuOnglet(index, barre.mapToGlobal(onglet.bottomLeft()));
}

// The line behind the add button, whose own colour is for light windows.
void OngletsGalerie::AccordeLigne()
{
    for (QFrame * const ligne :
         PreteBarre()->findChildren<QFrame *>(QString(), Qt::FindDirectChildrenOnly))
        ligne->setStyleSheet(ThemesQt::Instance()->AppliquerVariable(kFeuilleLigne.toString()));
}

void OngletsGalerie::BrancheClavier()
{
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
        connect(raccourci, &QShortcut::activated, this, prise);
    }
    // Not all systems ask for the menu with it, as they do with the key of its own.
    auto * const menu = new QShortcut(Qt::SHIFT | Qt::Key_F10, PreteBarre()->PreteBarreInterne());
    menu->setContext(Qt::WidgetWithChildrenShortcut);
    connect(menu, &QShortcut::activated, this, &OngletsGalerie::PriseMenuAuClavier,
            Qt::UniqueConnection);
}

void OngletsGalerie::HabilleOnglet(int index)
{
    CadrePage const & cadre = *PreteCadre(index);
    MetsTexteOnglet(index, cadre.DonneTitre());
    MetsIconeOnglet(index, CreeIconePage(DonnePages().at(cadre.DonnePage())));
}

void OngletsGalerie::Tourne(int pas)
{
    if (int const nombre = DonneTotalOnglet(); nombre > 0)
        MetsIndexCourant((DonneIndexCourant() + pas + nombre) % nombre);
}
