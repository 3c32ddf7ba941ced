// navigation/DTabBar.cpp
#include "navigation/DTabBar.h"

#include "foundation/TraductionGui.h"

#include "navigation/DTabBarInterne.h"
#include "navigation/DTabWidget.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kEspacement = 1;
constexpr int kHauteurBarre = 29;
constexpr int kLargeurMinimale = 185; // one tab
constexpr QSize kTailleBoutonAjout(28, 28);

} // namespace

DTabBar::DTabBar(DTabWidget * parent, UniChaine identifiantGroupe)
    : QFrame(parent)
    , monIdentifiantGroupe(std::move(identifiantGroupe))
    , monLayout(new QHBoxLayout(this))
{
    monLayout->setContentsMargins(0, 0, 0, 0);
    monLayout->setSpacing(kEspacement);
    CreeBarreInterne();
    CreeBoutonAjout();
    connect(monBoutonAjout, &QPushButton::clicked, this, &DTabBar::SignalAjouteOnglet,
            Qt::UniqueConnection);
}

void DTabBar::changeEvent(QEvent * evenement)
{
    QFrame::changeEvent(evenement);
    if (evenement->type() == QEvent::LanguageChange)
        NommeBoutonAjout();
}

void DTabBar::CreeBarreInterne()
{
    maBarreInterne = new DTabBarInterne(this, monIdentifiantGroupe);
    maBarreInterne->setExpanding(false);
    maBarreInterne->setMovable(true);
    maBarreInterne->setElideMode(Qt::ElideRight);
    maBarreInterne->setTabsClosable(false);
    maBarreInterne->setFixedHeight(kHauteurBarre);
    maBarreInterne->setMinimumWidth(kLargeurMinimale);
    monLayout->addWidget(maBarreInterne);
}

void DTabBar::CreeBoutonAjout()
{
    auto * const colonne = new QVBoxLayout;
    colonne->setContentsMargins(0, 0, 0, 0);
    monLayout->addLayout(colonne);

    monBoutonAjout = new QPushButton(this);
    monBoutonAjout->setObjectName(u"boutonAjoutOnglet"_s);
    NommeBoutonAjout();
    monBoutonAjout->setIcon(QIcon(u":/Images/boutonAjoutOnglet.png"_s));
    monBoutonAjout->setFixedSize(kTailleBoutonAjout);
    colonne->addWidget(monBoutonAjout);

    auto * const ligne = new QFrame(this);
    ligne->setStyleSheet(u"QFrame{border-bottom-width: 1px; border-color: rgb(220,220,220); "
                         "border-style: solid; }"_s);
    ligne->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Minimum);
    ligne->setMinimumHeight(1);
    colonne->addWidget(ligne);
}

void DTabBar::NommeBoutonAjout()
{
    monBoutonAjout->setAccessibleName(TraductionGui(TexteGui("Ajouter un onglet")));
}
