// galerie/FenetreOnglets.cpp
#include "FenetreOnglets.h"

#include "CadrePage.h"
#include "OngletsGalerie.h"
#include "TraductionGalerie.h"

#include <QCloseEvent>
#include <QVBoxLayout>

FenetreOnglets::FenetreOnglets()
    : mesOnglets(new OngletsGalerie)
{
    auto * const disposition = new QVBoxLayout(this);
    disposition->setContentsMargins({});
    disposition->addWidget(mesOnglets);
}

void FenetreOnglets::MetsTitre()
{
    if (CadrePage const * const cadre = mesOnglets->PreteCadreCourant())
        setWindowTitle(TraductionGalerie(TexteGalerie("{1} – Galerie de libFabrelGui"),
                                         {cadre->DonneTitre()}));
}

void FenetreOnglets::closeEvent(QCloseEvent * evenement)
{
    evenement->accept();
    Q_EMIT SignalFermay();
}
