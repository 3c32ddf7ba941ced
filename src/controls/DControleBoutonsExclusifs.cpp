// controls/DControleBoutonsExclusifs.cpp
#include "controls/DControleBoutonsExclusifs.h"

#include "controls/DBoutonAvecMenu_p.h"
#include "foundation/Layouts.h"
#include "foundation/ThemesQt.h"

#include <QButtonGroup>
#include <QChildEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr char const * kEtiquette = "etiquette";
constexpr int kLargeurSeparateur = 1; // logical pixels

/// Asks for its colour at each painting: the theme does not tell of changes.
class SeparateurBoutons : public QWidget
{
public:
    explicit SeparateurBoutons(QWidget * parent)
        : QWidget(parent)
    {
        setFixedWidth(kLargeurSeparateur);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QColor const couleur = ThemesQt::Instance()->DonneCouleur(u"couleurSeparateur"_s);
        if (couleur.isValid())
            QPainter(this).fillRect(rect(), couleur);
    }
};

} // namespace

DControleBoutonsExclusifs::DControleBoutonsExclusifs(std::vector<InfosBouton> boutons,
                                                     QWidget * parent)
    : QFrame(parent)
    , monGroupe(new QButtonGroup(this))
    , monStyleGauche(u"AGauche"_s)
    , monStyleDroite(u"ADroite"_s)
    , mesBoutons(std::move(boutons))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed); // as high as its buttons
    monGroupe->setExclusive(true);
    auto * const disposition = new QHBoxLayout(this);
    RoutinesGeneralesQt::EnleveMargesDuLayout(disposition);
    disposition->setSpacing(0);
    bool estPremier = true;
    for (auto const & infos : mesBoutons) {
        if (!std::exchange(estPremier, false))
            disposition->addWidget(CreeSeparateur());
        bool const cochay = infos.cochay && !monGroupe->checkedButton();
        disposition->addWidget(
            CreeControle(infos.texte, infos.identifiant, cochay, infos.avecMenu));
    }
    AppliqueProprieteStyleBoutons();
    AjusteTabulation();
    // Of the group, which tells also while a host blocks a button's signals.
    connect(monGroupe, &QButtonGroup::buttonToggled, this,
            &DControleBoutonsExclusifs::AjusteTabulation, Qt::UniqueConnection);
}

void DControleBoutonsExclusifs::AppliqueProprieteStyleBoutons(char const * nom)
{
    if (!nom || !*nom)
        return;
    auto const boutons = monGroupe->buttons();
    for (auto * const bouton : boutons) {
        QString place = u""_s;
        if (bouton == boutons.first())
            place = monStyleGauche;
        else if (bouton == boutons.last())
            place = monStyleDroite;
        bouton->setProperty(nom, place);
        bouton->style()->unpolish(bouton);
        bouton->style()->polish(bouton);
    }
}

QAbstractButton * DControleBoutonsExclusifs::DonneBouton(QVariant const & identifiant) const
{
    auto const boutons = monGroupe->buttons();
    for (auto * const bouton : boutons)
        if (bouton->property(kProprieteIdentifiant) == identifiant)
            return bouton;
    return nullptr;
}

QVariant DControleBoutonsExclusifs::DonneIdentifiant(QAbstractButton const * bouton) const
{
    bool const estDuGroupe = bouton && bouton->group() == monGroupe;
    return estDuGroupe ? bouton->property(kProprieteIdentifiant) : QVariant();
}

QVariant DControleBoutonsExclusifs::DonneIdentifiantCochay() const
{
    return DonneIdentifiant(monGroupe->checkedButton());
}

void DControleBoutonsExclusifs::MetsCochay(QVariant const & identifiant, bool cochay)
{
    if (auto * const bouton = DonneBouton(identifiant))
        bouton->setChecked(cochay);
}

void DControleBoutonsExclusifs::MetsTooltipSurBouton(QVariant const & identifiant,
                                                     UniChaine const & texte)
{
    if (auto * const bouton = DonneBouton(identifiant))
        bouton->setToolTip(texte);
}

void DControleBoutonsExclusifs::AjusterAffichageMenuBoutons(QVariant const & identifiant,
                                                            bool visible)
{
    if (auto * const bouton = qobject_cast<DBoutonAvecMenu *>(DonneBouton(identifiant)))
        bouton->AfficheMenu(visible);
}

bool DControleBoutonsExclusifs::eventFilter(QObject * objet, QEvent * evenement)
{
    switch (evenement->type()) {
    case QEvent::FocusOut: // Qt lets Tab come back to the button that had the focus
    case QEvent::EnabledChange:
    case QEvent::HideToParent:
    case QEvent::ShowToParent:
        AjusteTabulation();
        break;
    default:
        break;
    }
    return QFrame::eventFilter(objet, evenement);
}

void DControleBoutonsExclusifs::childEvent(QChildEvent * evenement)
{
    QFrame::childEvent(evenement);
    if (evenement->removed())
        AjusteTabulation();
}

// Qt does this only once a button has had the focus. Not with a checked button that Tab would skip,
// or the whole row would be skipped.
void DControleBoutonsExclusifs::AjusteTabulation()
{
    auto const * const cochay = monGroupe->checkedButton();
    // A button of a row that was never shown is hidden, too, but by nobody.
    bool const cachay =
        cochay && cochay->isHidden() && cochay->testAttribute(Qt::WA_WState_ExplicitShowHide);
    bool const seul = cochay && cochay->isEnabled() && !cachay;
    auto const boutons = monGroupe->buttons();
    for (auto * const bouton : boutons) {
        int const sansTab = bouton->focusPolicy() & ~Qt::TabFocus;
        bool const avecTab = !seul || bouton == cochay;
        bouton->setFocusPolicy(Qt::FocusPolicy(avecTab ? sansTab | Qt::TabFocus : sansTab));
    }
}

QAbstractButton * DControleBoutonsExclusifs::CreeControle(UniChaine const & texte,
                                                          QVariant const & identifiant, bool cochay,
                                                          bool avecMenu)
{
    auto * const bouton = new DBoutonAvecMenu(texte, avecMenu, this);
    bouton->setProperty(kProprieteIdentifiant, identifiant);
    bouton->setProperty(kEtiquette, QString(texte));
    bouton->setCheckable(true);
    bouton->setAutoDefault(false);
    bouton->setAutoExclusive(true); // only for assistive technologies: the group rules
    monGroupe->addButton(bouton);
    bouton->setChecked(cochay);
    connect(bouton, &QAbstractButton::toggled, this, &DControleBoutonsExclusifs::toggled,
            Qt::UniqueConnection);
    bouton->installEventFilter(this);
    connect(bouton, &DBoutonAvecMenu::menuCliquay, this, &DControleBoutonsExclusifs::menuCliquay,
            Qt::UniqueConnection);
    return bouton;
}

QWidget * DControleBoutonsExclusifs::CreeSeparateur()
{
    return new SeparateurBoutons(this);
}
