// dialogs/DMessageBoxAvecCaseACocher.cpp
#include "dialogs/DMessageBoxAvecCaseACocher.h"

#include "dialogs/TextesAlerte_p.h"
#include "foundation/TraductionGui.h"
#include "style/ProprietesStyle_p.h"

#include "noyau/DAlerteInfo.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace {

/// A blank line below makes room for the check box: beside an icon both share a cell.
QString AvecLigneVide(QString const & explication, bool estRiche)
{
    QString texte = explication + "<br>"_L1;
    if (estRiche || Qt::mightBeRichText(texte))
        return texte;
    // Qt takes it for plain text, because of a line feed or a "<": it would show the tag.
    return explication.toHtmlEscaped().replace(u'\n', "<br>"_L1) + "<br>"_L1;
}

} // namespace

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
    if (QString const explication = DonneExplicationAvecNote(info); !explication.isEmpty())
        setInformativeText(AvecLigneVide(explication, info.texteRiche));
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
