// dialogs/DMessageBox.cpp
#include "dialogs/DMessageBox.h"

#include "desktop/RoutinesFenetre.h"
#include "dialogs/DAlerteInfoMaison.h"
#include "dialogs/DDialogueAbs.h"
#include "dialogs/TextesAlerte_p.h"
#include "foundation/GeometrieEcran.h"
#include "foundation/TraductionGui.h"

#include "noyau/RoutinesBureau.h"
#include "noyau/Traductions.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPointer>
#include <QRegularExpression>
#include <QUrl>

using namespace DDialogue;
using namespace Qt::StringLiterals;

namespace {

constexpr int kTailleIcone = 32; // logical pixels, of an image of the caller's

QMessageBox::Icon DonneIconeDuType(DAlerteInfo::eTypeDialogue type)
{
    switch (type) {
    case DAlerteInfo::kQuestion:
        return QMessageBox::Question;
    case DAlerteInfo::kInformation:
        return QMessageBox::Information;
    case DAlerteInfo::kAvertissement:
    case DAlerteInfo::kNotification:
        return QMessageBox::Warning;
    case DAlerteInfo::kErreur:
        return QMessageBox::Critical;
    default:
        return QMessageBox::NoIcon;
    }
}

} // namespace

DMessageBox::DMessageBox(DDialogueAbs * proprietaire, QWidget * parent, DAlerteInfo const & info)
    : QMessageBox(parent)
    , monProprietaire(proprietaire)
    , monParent(parent)
{
    setAttribute(Qt::WA_QuitOnClose, false); // an alert never ends the application
    if (info.texteRiche)
        setTextFormat(Qt::RichText);
    PoseIcone(info);
    Branche();
    PoseTextes(info);
    // A box that answers without being shown is spared its looks, most of what an alert costs.
    if (proprietaire->SeraMontree())
        Habille();
}

DMessageBox::~DMessageBox()
{
    delete monProprietaire;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): a slot, whose signature others name
void DMessageBox::PriseHyperlien(QString cible)
{
    bool estNombre = false;
    int const nombre = cible.toInt(&estNombre);
    if (estNombre) {
        QPointer<DMessageBox> const garde = this;
        close();
        if (garde)
            setResult(nombre | static_cast<int>(kBoutonLien));
        return;
    }
    if (QUrl(cible).isValid())
        RoutinesGeneralesQt::LanceFureteurExterne(ContexteLocalisationGui(),
                                                  Traductions::DonneLocalePourApplicationCourante(),
                                                  cible, QString());
}

void DMessageBox::PriseBoutonCliquay(QAbstractButton * bouton)
{
    Conclus(bouton ? monProprietaire->DonneIdentifiant(bouton) : static_cast<int>(kBoutonAnnuler));
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): a slot, whose signature others name
void DMessageBox::PriseResultat(QVariant valeur)
{
    eBoutons reponse = kBoutonAucun;
    QMetaType const type = QMetaType::fromType<eBoutons>();
    if (valeur.metaType() == type)
        reponse = valeur.value<eBoutons>();
    else
        QMetaType::convert(valeur.metaType(), valeur.constData(), type, &reponse);
    Conclus(static_cast<int>(reponse));
}

void DMessageBox::setVisible(bool visible)
{
    if (visible && !monHabillageEstFait) // silent execution has ended in between
        Habille();
    QMessageBox::setVisible(visible);
}

void DMessageBox::reject()
{
    if (monRejetEstDifferay)
        monRejetEstDemanday = true;
    else
        PriseBoutonCliquay(escapeButton());
}

void DMessageBox::done(int) {}

void DMessageBox::showEvent(QShowEvent * evenement)
{
    QEvent miseEnPage(QEvent::LayoutRequest);
    QMessageBox::event(&miseEnPage); // the box has its size before it is centred
    RoutinesFenetre::CentrageWidgetDansParentOuEcran(this, monParent == nullptr);
    RoutinesFenetre::MetsFenetreEnAvantPlanEtActive(this, true);
    QMessageBox::showEvent(evenement);
}

bool DMessageBox::CaseEstCochee() const
{
    return false;
}

void DMessageBox::closeEvent(QCloseEvent * evenement)
{
    // The base goes on working on itself after it has rejected, and an answer may destroy this box:
    // the base decides here whether the window may close, and the answer is given after it.
    monRejetEstDifferay = true;
    QMessageBox::closeEvent(evenement);
    monRejetEstDifferay = false;
    if (!std::exchange(monRejetEstDemanday, false))
        return;
    QPointer<DMessageBox> const garde = this;
    reject();
    evenement->setAccepted(!garde || !isVisible());
}

void DMessageBox::changeEvent(QEvent * evenement)
{
    QMessageBox::changeEvent(evenement);
    if (evenement->type() == QEvent::StyleChange)
        RegleEtiquettes(); // the base has just given its labels the flags of the style
}

void DMessageBox::PoseIcone(DAlerteInfo const & info)
{
    if (info.DonneTypeDialogue() != DAlerteInfo::kMaison)
        setIcon(DonneIconeDuType(info.DonneTypeDialogue()));
    else if (auto const * const maison = dynamic_cast<DAlerteInfoMaison const *>(&info))
        setIconPixmap(maison->DonneIcone().Prete(kTailleIcone, kTailleIcone));
}

void DMessageBox::Habille()
{
    monHabillageEstFait = true;
    PoseIconeDeFenetre();
    setFont(QApplication::font());
    setStyleSheet(DDialogueAbs::DonneStyleSheet(font()));
    RegleEtiquettes();
}

void DMessageBox::PoseIconeDeFenetre()
{
    if (!windowIcon().isNull())
        return;
    QIcon icone(u":/Images/IconeBarreTitre.png"_s); // the application's, if it has one
    if (icone.availableSizes().isEmpty()) // an icon of a file that is not there is not null
        icone = QIcon(u":/Images/IconeBarreTitreDefautLibFabrelGui.png"_s);
    setWindowIcon(icone);
}

void DMessageBox::PoseTextes(DAlerteInfo const & info)
{
    bool const titreDuParent = monParent && info.EstTitreParDefaut();
    setWindowTitle(titreDuParent ? monParent->windowTitle() : QString(info.DonneTitreFenetre()));
    setText(info.DonneMessage());
    QString const explication = DonneExplicationAvecNote(info);
    setInformativeText(explication);

    QString lu = DonneTexteLu(info.DonneMessage(), info.texteRiche);
    if (!explication.isEmpty())
        lu += u'\n' + DonneTexteLu(explication, info.texteRiche).trimmed();
    setAccessibleDescription(lu);
}

void DMessageBox::Branche()
{
    // The base would close the box with a code of its own after each click, and go on working on
    // itself when the answer has destroyed it. So the clicks come here instead.
    auto * const barre = findChild<QDialogButtonBox *>();
    disconnect(barre, &QDialogButtonBox::clicked, this, nullptr);
    connect(barre, &QDialogButtonBox::clicked, this, &QMessageBox::buttonClicked,
            Qt::UniqueConnection);
    connect(this, &QMessageBox::buttonClicked, this, &DMessageBox::PriseBoutonCliquay,
            Qt::UniqueConnection);
    // Queued: a box that is never shown answers once the call that raised it has returned.
    connect(this, &DMessageBox::SignalDejaRepondu, this, &DMessageBox::PriseResultat,
            Qt::QueuedConnection);
}

void DMessageBox::RegleEtiquettes()
{
    static QRegularExpression const lien(u"<a\\s"_s, QRegularExpression::CaseInsensitiveOption);
    auto const etiquettes = findChildren<QLabel *>();
    for (QLabel * const etiquette : etiquettes) {
        etiquette->setOpenExternalLinks(false);
        etiquette->setTextInteractionFlags(Qt::LinksAccessibleByMouse |
                                           Qt::LinksAccessibleByKeyboard);
        // The flags make a stop of the Tab key out of every label; only those with links are one.
        if (!etiquette->text().contains(lien))
            etiquette->setFocusPolicy(Qt::NoFocus);
        connect(etiquette, &QLabel::linkActivated, this, &DMessageBox::PriseHyperlien,
                Qt::UniqueConnection);
    }
}

void DMessageBox::Conclus(int reponse)
{
    // Once: whoever hears the answer may bring the event loop back, and the box is still there.
    if (std::exchange(monEstConclue, true))
        return;
    QPointer<DMessageBox> const garde = this; // nor need it survive that
    int const transmise = monProprietaire->TransmetsReponse(reponse);
    if (!garde)
        return;
    maReponse = transmise;
    Q_EMIT SignalEnFermeture(static_cast<eBoutons>(transmise));
    if (garde)
        QDialog::done(transmise);
}
