// dialogs/DMessageBoxAvecCaseACocher.cpp
#include "dialogs/DMessageBoxAvecCaseACocher.h"

#include "dialogs/TextesAlerte_p.h"
#include "foundation/TraductionGui.h"
#include "style/ProprietesStyle_p.h"

#include "noyau/DAlerteInfo.h"

#include <QCheckBox>
#include <QGridLayout>

using namespace Qt::StringLiterals;

DMessageBoxAvecCaseACocher::DMessageBoxAvecCaseACocher(DDialogueAbs * proprietaire,
                                                       QWidget * parent, DAlerteInfo const & info)
    : DMessageBox(proprietaire, parent, info)
{
    UniChaine const & libelle = info.libelleCaseACocher;
    maCaseACocher = new QCheckBox(
        libelle.EstVide() ? QString(TraductionGui(TexteGui("Ne plus afficher ce dialogue")))
                          : QString(libelle),
        this);
    maCaseACocher->setObjectName(u"NePlusMAviser"_s); // style sheets know it by this name
    maCaseACocher->setProperty(ProprietesStyle::kPourStyle, true);
    // The blank line makes room for the check box, which shares the cell of the explanation.
    if (QString const explication = DonneExplicationAvecNote(info); !explication.isEmpty())
        setInformativeText(explication + "<br>"_L1);
}

bool DMessageBoxAvecCaseACocher::CaseEstCochee() const
{
    return maCaseACocher->isChecked();
}

void DMessageBoxAvecCaseACocher::showEvent(QShowEvent * evenement)
{
    PlaceCaseACocher();
    DMessageBox::showEvent(evenement);
}

void DMessageBoxAvecCaseACocher::changeEvent(QEvent * evenement)
{
    DMessageBox::changeEvent(evenement);
    // With an icon the base has just made a new layout.
    if (evenement->type() == QEvent::StyleChange && isVisible())
        PlaceCaseACocher();
}

void DMessageBoxAvecCaseACocher::PlaceCaseACocher()
{
    if (auto * const grille = qobject_cast<QGridLayout *>(layout()))
        grille->addWidget(maCaseACocher, 1, 2, 1, 1, Qt::AlignLeft | Qt::AlignBottom);
}
