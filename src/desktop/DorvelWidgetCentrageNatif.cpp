// desktop/DorvelWidgetCentrageNatif.cpp
#include "desktop/DorvelWidgetCentrageNatif.h"

#include "desktop/QWinWidget.h"

#include "noyau/plateforme/PlateformeFenetres.h"

#include <QTimer>

namespace {
// No window system tells a program of the end of another's windows without being in its way.
constexpr int kIntervalle = 500; // ms
} // namespace

DorvelWidgetCentrageNatif::DorvelWidgetCentrageNatif(HWND fenetre)
    : maFenetreCentrage(std::make_unique<QWinWidget>(fenetre))
    , monMinuteur(new QTimer(this))
{
    monMinuteur->setInterval(kIntervalle);
    connect(monMinuteur, &QTimer::timeout, this, &DorvelWidgetCentrageNatif::PriseVerifier,
            Qt::UniqueConnection);
    if (PlateformeFenetres::Courante().IsWindow(fenetre))
        monMinuteur->start();
}

DorvelWidgetCentrageNatif::~DorvelWidgetCentrageNatif()
{
    Q_EMIT SignalFermerDialogue();
}

QWidget * DorvelWidgetCentrageNatif::PreteFenetreCentrage() const
{
    return maFenetreCentrage.get();
}

void DorvelWidgetCentrageNatif::closeEvent(QCloseEvent * evenement)
{
    QWidget::closeEvent(evenement);
    Q_EMIT SignalFermerDialogue();
}

void DorvelWidgetCentrageNatif::PriseVerifier()
{
    if (PlateformeFenetres::Courante().IsWindow(maFenetreCentrage->DonneFenetreNative()))
        return;
    monMinuteur->stop();
    Q_EMIT SignalFermerDialogue();
}
