// style/DStyleProxy.cpp
#include "style/DStyleProxy.h"

#include "controls/DLabelElision.h"
#include "editing/DLineEdit.h"
#include "foundation/ThemesQt.h"
#include "style/LecturePropriete_p.h"
#include "style/MemoirePalettes_p.h"
#include "style/ProprietesStyle_p.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QStyleOption>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QMargins kMargeTexte(4, 0, 0, 0); // logical pixels: what the contents are moved by
constexpr char const * kProprieteMarge = "_d_margesTexte"; // of the field, this one included

QString NomCouleurSurvol()
{
    return u"couleurBoutonDStyleProxyMouseOver"_s;
}

} // namespace

DStyleProxy::DStyleProxy(QStyle * base)
    : QProxyStyle(base)
    , maCouleurFenetre(QApplication::palette().color(QPalette::Window))
    , monLabelElision(new DLabelElision(nullptr))
    , maMemoirePalettes(std::make_unique<MemoirePalettes>())
{
    ThemesQt::Instance()->AjouterVariable(NomCouleurSurvol(), QColor(u"#E5F1FB"_s));
}

DStyleProxy::~DStyleProxy()
{
    delete monLabelMesure;
    delete monLabelRendu;
    delete monLabelElision;
}

QColor DStyleProxy::DonneCouleurBoutonMouseOver() const
{
    return ThemesQt::Instance()->DonneCouleur(NomCouleurSurvol());
}

eContextePourStyle DStyleProxy::DonneContexte(QStyleOption const * option)
{
    if (!option)
        return kContexteNormal;
    bool const estItemMenu = option->version >= 1 && option->type == QStyleOption::SO_MenuItem;
    if (option->state & State_Selected)
        return estItemMenu ? kContexteMenuSelectionnay : kContexteSelectionnay;
    // Deliberate: a menu shows its current item, not the one under the mouse.
    if (option->state & State_MouseOver)
        return estItemMenu ? kContexteNormal : kContexteSurvolay;
    return kContexteNormal;
}

void DStyleProxy::polish(QWidget * widget)
{
    QProxyStyle::polish(widget);
    if (auto * const champ = qobject_cast<QLineEdit *>(widget))
        AjouteMargeTexte(*champ);
    if (auto * const champ = qobject_cast<DLineEdit *>(widget))
        champ->MetsAJourPalette();
}

void DStyleProxy::unpolish(QWidget * widget)
{
    if (auto * const champ = qobject_cast<QLineEdit *>(widget))
        EnleveMargeTexte(*champ);
    QProxyStyle::unpolish(widget);
}

// The contents of a line edit begin farther to the left than the base style has them. Where that is
// out of the field, its first letter would be cut.
void DStyleProxy::AjouteMargeTexte(QLineEdit & champ) const
{
    QStyleOptionFrame option;
    option.initFrom(&champ);
    option.lineWidth =
        champ.hasFrame() ? QProxyStyle::pixelMetric(PM_DefaultFrameWidth, &option, &champ) : 0;
    QRect const contenu = subElementRect(SE_LineEditContents, &option, &champ);
    if (contenu.left() >= 0 || champ.property(kProprieteMarge).isValid())
        return;
    champ.setTextMargins(champ.textMargins() + kMargeTexte);
    champ.setProperty(kProprieteMarge, QVariant::fromValue(champ.textMargins()));
}

void DStyleProxy::EnleveMargeTexte(QLineEdit & champ)
{
    QVariant const marges = champ.property(kProprieteMarge);
    if (!marges.isValid())
        return;
    if (champ.textMargins() == marges.value<QMargins>()) // else they are the application's now
        champ.setTextMargins(champ.textMargins() - kMargeTexte);
    champ.setProperty(kProprieteMarge, QVariant());
}

void DStyleProxy::drawItemPixmap(QPainter * peintre, QRect const & rect, int alignement,
                                 QPixmap const & pixmap) const
{
    constexpr double kOpacitePale = 0.35;

    auto const * const bouton = qobject_cast<QAbstractButton const *>(monWidgetDessinay.data());
    bool const pale =
        bouton && EstBooleenVrai(bouton, ProprietesStyle::kPourStyle) &&
        (!bouton->isEnabled() ||
         (!bouton->isCheckable() && !EstBooleenVrai(bouton, ProprietesStyle::kBoutonCheckable)));
    double const opacite = peintre->opacity();
    if (pale)
        peintre->setOpacity(kOpacitePale);
    QProxyStyle::drawItemPixmap(peintre, rect, alignement, pixmap);
    peintre->setOpacity(opacite);
}

bool DStyleProxy::PossedeDPIEntier(QWidget const * widget)
{
    if (!widget)
        return true;
    double const ratio = widget->window()->devicePixelRatioF();
    return std::floor(ratio) == ratio;
}

// Between pixels, the frames of an animation leave traces.
void DStyleProxy::ArreteAnimations(QStyleOption const * option, QWidget const * widget)
{
    if (option && option->styleObject && !PossedeDPIEntier(widget))
        option->styleObject->setProperty("_q_no_animation", true); // what Qt's own styles read
}

// Whether the base style writes selected menu items on the accent colour, as the styles of all
// platforms but one do.
bool DStyleProxy::SelectionnaySurFondAccent() const
{
    return !baseStyle()->inherits("QWindowsVistaStyle");
}

QLabel & DStyleProxy::PreteLabel(QPointer<QLabel> & label) const
{
    if (!label) {
        label = new QLabel;
        label->setTextFormat(Qt::RichText);
        label->setAttribute(Qt::WA_TranslucentBackground);
    }
    return *label;
}
