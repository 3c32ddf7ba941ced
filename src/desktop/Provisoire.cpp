#include "desktop/QWinWidget.h"
#include "desktop/RoutinesFenetre.h"
#include "dialogs/DDialogueProgressionInfinie.h"
#include "noyau/RoutinesBureau.h"
QWinWidget::QWinWidget(HWND f)
    : maFenetreNative(f)
{
}
QWinWidget::~QWinWidget() = default;
void RoutinesFenetre::MetsFenetreEnAvantPlanEtActive(QWidget *, bool) {}
DDialogueProgressionInfinie::DDialogueProgressionInfinie(QWidget * p, QString, QString,
                                                         QFlags<Qt::WindowType> f)
    : QDialog(p, f)
{
}
DDialogueProgressionInfinie::~DDialogueProgressionInfinie() = default;
