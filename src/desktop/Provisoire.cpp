#include "desktop/DorvelWidgetCentrageNatif.h"
#include "desktop/QWinWidget.h"
#include "desktop/RoutinesFenetre.h"
#include "noyau/RoutinesBureau.h"
QWinWidget::QWinWidget(HWND f)
    : maFenetreNative(f)
{
}
QWinWidget::~QWinWidget() = default;
void RoutinesFenetre::MetsFenetreEnAvantPlanEtActive(QWidget *, bool) {}
DorvelWidgetCentrageNatif::DorvelWidgetCentrageNatif(HWND)
{
    (new QWidget(this))->setObjectName(QStringLiteral("centrage"));
}
DorvelWidgetCentrageNatif::~DorvelWidgetCentrageNatif() = default;
QWidget * DorvelWidgetCentrageNatif::PreteFenetreCentrage() const
{
    return findChild<QWidget *>(QStringLiteral("centrage"));
}
