// search/DChampRecherche.cpp
#include "search/DChampRecherche.h"

#include "foundation/TraductionGui.h"

#include <QAction>
#include <QActionGroup>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

DChampRecherche::DChampRecherche(QWidget * parent)
    : DComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    lineEdit()->setClearButtonEnabled(true);
    setAccessibleName(TraductionGui(TexteGui("Rechercher")));
    lineEdit()->setAccessibleName(accessibleName());
}

void DChampRecherche::AjouteMode(int id, UniChaine const & libelle)
{
    if (id == kAucunMode)
        return;
    auto const mode = std::find_if(mesModes.begin(), mesModes.end(),
                                   [id](Mode const & autre) { return autre.id == id; });
    if (mode == mesModes.end())
        mesModes.append({id, libelle});
    else
        mode->libelle = libelle;
    MontreMode();
}

int DChampRecherche::DonneNombreDeModes() const
{
    return static_cast<int>(mesModes.size());
}

int DChampRecherche::DonneModeCourant() const
{
    return monModeCourant;
}

void DChampRecherche::MetsModeCourant(int id)
{
    if (id == monModeCourant || (id != kAucunMode && !TrouveMode(id)))
        return;
    monModeCourant = id;
    MontreMode();
    Q_EMIT SignalModeChangay(id);
}

void DChampRecherche::VideToutMode()
{
    mesModes.clear();
    if (monMenu)
        monMenu->hide();
    MetsModeCourant(kAucunMode);
}

void DChampRecherche::showPopup()
{
    if (mesModes.isEmpty()) {
        DComboBox::showPopup();
        return;
    }
    RemplisMenu();
    monMenu->setMinimumWidth(width());
    monMenu->popup(mapToGlobal(QPoint(0, height())));
}

void DChampRecherche::hidePopup()
{
    if (monMenu)
        monMenu->hide();
    DComboBox::hidePopup();
}

bool DChampRecherche::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet == monMenu && evenement->type() == QEvent::MouseButtonPress) {
        QPoint const point =
            mapFromGlobal(static_cast<QMouseEvent *>(evenement)->globalPosition().toPoint());
        // A click on the arrow closes the menu, and must not open it again. The field takes it.
        bool const dansLeChamp = lineEdit() && lineEdit()->geometry().contains(point);
        monMenu->setAttribute(Qt::WA_NoMouseReplay, rect().contains(point) && !dansLeChamp);
    }
    return DComboBox::eventFilter(objet, evenement);
}

void DChampRecherche::wheelEvent(QWheelEvent * evenement)
{
    evenement->ignore(); // what is around may scroll
}

void DChampRecherche::PriseMenuFermay()
{
    DComboBox::hidePopup(); // lets go of the arrow
}

void DChampRecherche::PriseModeChoisi(QAction * action)
{
    MetsModeCourant(action->data().toInt());
}

void DChampRecherche::CreeMenu()
{
    monMenu = new QMenu(this);
    monGroupe = new QActionGroup(monMenu);
    monMenu->installEventFilter(this);
    connect(monMenu, &QMenu::aboutToHide, this, &DChampRecherche::PriseMenuFermay,
            Qt::UniqueConnection);
    connect(monGroupe, &QActionGroup::triggered, this, &DChampRecherche::PriseModeChoisi,
            Qt::UniqueConnection);
}

DChampRecherche::Mode const * DChampRecherche::TrouveMode(int id) const
{
    auto const mode = std::find_if(mesModes.cbegin(), mesModes.cend(),
                                   [id](Mode const & autre) { return autre.id == id; });
    return mode == mesModes.cend() ? nullptr : &*mode;
}

void DChampRecherche::MontreMode()
{
    QLineEdit * const champ = lineEdit();
    if (!champ)
        return; // the host has made the combo box one that cannot be edited
    Mode const * const mode = TrouveMode(monModeCourant);
    if (mode && !monInvitePrise)
        monInvite = champ->placeholderText();
    if (mode || monInvitePrise)
        champ->setPlaceholderText(mode ? mode->libelle : monInvite);
    monInvitePrise = mode != nullptr;
    // The placeholder is not there any more once there is a text.
    setAccessibleDescription(mode ? mode->libelle : QString());
    champ->setAccessibleDescription(accessibleDescription());
}

void DChampRecherche::RemplisMenu()
{
    if (!monMenu)
        CreeMenu();
    monMenu->clear();
    for (Mode const & mode : mesModes) {
        QString texte = mode.libelle;
        texte.replace(u'&', u"&&"_s); // a label has no mnemonic: the field shows it too
        QAction * const action = monMenu->addAction(texte);
        action->setData(mode.id);
        action->setCheckable(true);
        action->setChecked(mode.id == monModeCourant);
        monGroupe->addAction(action);
    }
}
