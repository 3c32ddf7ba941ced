// desktop/RoutinesFenetre.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/UniChaine.h"
#include "noyau/plateforme/TypesWin32.h"

#include <QSet>
#include <QString>

class QWidget;

// Windows of this program and of others: finding them, bringing them to the front, telling whether
// they hang. A tool that works beside another program stands on these. No operation reports an
// error: a handle whose window is gone does nothing and answers null or false. GUI thread only.

namespace RoutinesFenetre {

FABRELGUI_EXPORT HWND DonneHandleFenetre(QWidget const * const widget);
FABRELGUI_EXPORT void MinimiserFenetre(QWidget * const widget);
FABRELGUI_EXPORT void MetsFenetreEnAvantPlan(QWidget * widget);
FABRELGUI_EXPORT void MetsFenetreEnAvantPlan(HWND fenetre);
FABRELGUI_EXPORT void MetsFenetreEnAvantPlanEtActive(HWND fenetre, bool forcer);
FABRELGUI_EXPORT void MetsFenetreEnAvantPlanEtActive(QWidget * widget, bool forcer);
FABRELGUI_EXPORT HWND RechercheFenetreActive();
FABRELGUI_EXPORT HWND RechercheFenetreActive(HWND arret);
FABRELGUI_EXPORT bool TrouveSecondeFenActive(HWND * fenetre, QSet<HWND> exclues, unsigned sens);
FABRELGUI_EXPORT void DonneFenetreAvantPlan(HWND & fenetre, QSet<QString> classesExclues);
FABRELGUI_EXPORT void DonneTexteurCourant(HWND & fenetre, QSet<QString> classesExclues);
FABRELGUI_EXPORT HWND DonneControleEnFocusClavier(HWND const & fenetre);
FABRELGUI_EXPORT bool FenetreEstGelee(HWND const & fenetre);
FABRELGUI_EXPORT bool TypIdFenetreEstBureauWindows7(HWND const & fenetre);
FABRELGUI_EXPORT HWND SingletonApplicationCreeFenetre(UniChaine const & classe,
                                                      UniChaine const & titre);
FABRELGUI_EXPORT void SingletonApplicationDetruitFenetre(UniChaine const & classe);
FABRELGUI_EXPORT bool SingletonApplicationFenetreExiste(UniChaine const & classe, HWND * fenetre);

} // namespace RoutinesFenetre

namespace RoutinesGeneralesQt {

FABRELGUI_EXPORT void InsereCaractereDansTexteur(HWND const & fenetre, quint64 const & code);
FABRELGUI_EXPORT void EnumereFenMonApplication(QSet<HWND> * fenetres);

} // namespace RoutinesGeneralesQt
