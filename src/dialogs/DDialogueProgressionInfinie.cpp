// dialogs/DDialogueProgressionInfinie.cpp
#include "dialogs/DDialogueProgressionInfinie.h"

#include "desktop/DorvelWidgetCentrageNatif.h"
#include "dialogs/TextesAlerte_p.h"
#include "foundation/FenetreNative_p.h"
#include "foundation/Layouts.h"
#include "foundation/ThemesQt.h"

#include "noyau/plateforme/PlateformeFenetres.h"

#include <QAbstractButton>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLargeurMin = 200;      // logical pixels, between the margins
constexpr int kRafraichissement = 25; // ms

} // namespace

// NOLINTBEGIN(performance-unnecessary-value-param): texts are shared, not copied
DDialogueProgressionInfinie::DDialogueProgressionInfinie(QWidget * parent, QString texte,
                                                         QString texteSecondaire,
                                                         QFlags<Qt::WindowType> flags)
    : QDialog(parent, flags)
{
    init(parent, texte, texteSecondaire);
}

DDialogueProgressionInfinie::DDialogueProgressionInfinie(DorvelWidgetCentrageNatif * parent,
                                                         QString texte, QString texteSecondaire,
                                                         QFlags<Qt::WindowType> flags)
    : QDialog(parent ? parent->PreteFenetreCentrage() : nullptr, flags)
{
    init(parent, texte, texteSecondaire);
}

// NOLINTEND(performance-unnecessary-value-param)

DDialogueProgressionInfinie::~DDialogueProgressionInfinie() = default;

void DDialogueProgressionInfinie::init(QWidget * parent, QString const & texte,
                                       QString const & texteSecondaire)
{
    maMinuterieRafraichir = new QTimer(this);
    maMinuterieRafraichir->setInterval(kRafraichissement);
    connect(maMinuterieRafraichir, &QTimer::timeout, this,
            &DDialogueProgressionInfinie::PriseRafraichir, Qt::UniqueConnection);

    setWindowModality(Qt::NonModal);
    setAttribute(Qt::WA_DeleteOnClose, true);
    setObjectName(u"DialoguePatience"_s); // applications style it under this name
    setAttribute(Qt::WA_ShowWithoutActivating, true);
    setFocusPolicy(Qt::NoFocus);

    auto * const disposition = new QVBoxLayout(this);
    monTexte = new QLabel;
    CreeBarre();
    monTexteSecondaire = new QLabel;
    CreeCadreBoutons();
    disposition->addWidget(monTexte);
    disposition->addWidget(maBarre);
    disposition->addWidget(monTexteSecondaire);
    disposition->addWidget(monCadreBoutons);
    disposition->addStrut(kLargeurMin);

    if (auto const * const hote = qobject_cast<DorvelWidgetCentrageNatif *>(parent))
        connect(hote, &DorvelWidgetCentrageNatif::SignalFermerDialogue, this,
                &DDialogueProgressionInfinie::PriseFermerDialogue, Qt::UniqueConnection);
    PrendsTexte(texte);
    PrendsTexteSecondaire(texteSecondaire);
}

void DDialogueProgressionInfinie::CreeBarre()
{
    maBarre = new QProgressBar;
    maBarre->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    maBarre->setTextVisible(false);
    maBarre->setRange(0, 0); // the busy form
}

void DDialogueProgressionInfinie::CreeCadreBoutons()
{
    monCadreBoutons = new QFrame;
    auto * const disposition = new QHBoxLayout(monCadreBoutons);
    RoutinesGeneralesQt::EnleveMargesDuLayout(disposition);
    disposition->addStretch(1);
}

void DDialogueProgressionInfinie::AjouterBouton(QAbstractButton * bouton)
{
    if (bouton)
        monCadreBoutons->layout()->addWidget(bouton);
}

void DDialogueProgressionInfinie::PrendsTexte(QString const & texte)
{
    monTexte->setText(texte);
    setAccessibleName(DonneTexteLu(texte));
    maBarre->setAccessibleName(accessibleName());
}

void DDialogueProgressionInfinie::PrendsTexteSecondaire(QString const & texte)
{
    monTexteSecondaire->setText(texte);
    setAccessibleDescription(DonneTexteLu(texte));
}

void DDialogueProgressionInfinie::PriseRafraichir()
{
    maBarre->update();
}

void DDialogueProgressionInfinie::PriseFermerDialogue()
{
    close();
}

void DDialogueProgressionInfinie::showEvent(QShowEvent * evenement)
{
    QDialog::showEvent(evenement);
    HWND const fenetre = RoutinesGeometrie::DonnePoignee(winId());
    // A wait that lasts must not cover what the user turns to meanwhile.
    PlateformeFenetres::Courante().SetWindowPos(fenetre, HWND_NOTOPMOST, 0, 0, 0, 0,
                                                SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
    maMinuterieRafraichir->start();
}

void DDialogueProgressionInfinie::paintEvent(QPaintEvent * evenement)
{
    QDialog::paintEvent(evenement);
    bool const estHabillay = testAttribute(Qt::WA_StyleSheetTarget); // by an application's sheet
    if (estHabillay || !windowFlags().testFlag(Qt::FramelessWindowHint))
        return;
    // Without a line around it, it would melt into the window under it.
    QPainter peintre(this);
    peintre.setPen(ThemesQt::Instance()->DonneCouleur(u"couleurBordureGeneral"_s));
    peintre.drawRect(rect().adjusted(0, 0, -1, -1));
}
