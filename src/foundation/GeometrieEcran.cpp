// foundation/GeometrieEcran.cpp
#include "foundation/GeometrieEcran.h"

#include "foundation/FenetreNative_p.h"
#include "foundation/GeometrieEcranCalculs_p.h"

#include "noyau/plateforme/PlateformeFenetres.h"

#include <QApplication>
#include <QCursor>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <optional>

namespace {
using RoutinesGeometrie::DonnePoignee;

constexpr char kProprieteReajustement[] = "DoitRefaireAjusteDansEcran";
constexpr auto kEvenementReajustement = static_cast<QEvent::Type>(1000); // QEvent::User

bool tourneeEnCours = false; // widgets are being told that windows were moved

void AnnonceAjustement()
{
    QScopedValueRollback const enCours(tourneeEnCours, true);
    QList<QPointer<QWidget>> fenetres; // one may destroy another when it is told
    for (QWidget * const fenetre : QApplication::topLevelWidgets())
        fenetres.append(fenetre);
    for (QPointer<QWidget> const & fenetre : fenetres) {
        if (fenetre && !fenetre->property(kProprieteReajustement).isValid())
            fenetre->setProperty(kProprieteReajustement, true);
        if (!fenetre || !fenetre->property(kProprieteReajustement).toBool())
            continue;
        QEvent evenement(kEvenementReajustement);
        QCoreApplication::sendEvent(fenetre, &evenement);
    }
}

QRect DonneCadre(QWidget const & widget)
{
    return {widget.pos(), widget.frameSize()};
}

QMargins DonneBordures(QWidget const & widget)
{
    QRect const cadre = widget.frameGeometry();
    QRect const interieur = widget.geometry();
    return {interieur.left() - cadre.left(), interieur.top() - cadre.top(),
            cadre.right() - interieur.right(), cadre.bottom() - interieur.bottom()};
}

HWND DonneParentNatif(QWidget const & widget)
{
    QWindow const * const fenetre = widget.windowHandle();
    if (!fenetre)
        return nullptr;
    QWindow const * const parent = fenetre->transientParent();
    PlateformeFenetres & plateforme = PlateformeFenetres::Courante();
    HWND const poignee = parent && parent->type() == Qt::ForeignWindow
                             ? DonnePoignee(parent->winId())
                             : plateforme.GetWindow(DonnePoignee(widget.internalWinId()), GW_OWNER);
    return poignee && plateforme.IsWindow(poignee) ? poignee : nullptr;
}

bool CentreDansParentNatif(QWidget & widget)
{
    HWND const parent = DonneParentNatif(widget);
    auto const interieur = parent ? RoutinesGeometrie::DonneInterieurNatif(parent) : std::nullopt;
    if (!interieur)
        return false;
    QScreen const * const ecran = RoutinesGeometrie::DonneEcranDe(parent);
    double const ratio = ecran ? ecran->devicePixelRatio() / widget.devicePixelRatioF() : 1.0;
    widget.move(RoutinesGeometrie::DonneCoinDansParentNatif(*interieur,
                                                            QSizeF(widget.frameSize()) * ratio));
    return true;
}

void CentreDansParent(QWidget & widget, QWidget const & parent, bool plusHaut)
{
    QPoint const coin = RoutinesGeometrie::DonneCoinDansParent(parent.frameSize(), parent.height(),
                                                               widget.frameSize(), plusHaut);
    widget.move(widget.isWindow() ? parent.mapToGlobal(QPoint(0, 0)) + coin : coin);
    RoutinesGeneralesQt::AjusteDansEcran(widget, true, false, false);
}

} // namespace

QScreen * RoutinesGeneralesQt::EcranLePlusProche(QPoint const & point)
{
    auto const ecrans = QGuiApplication::screens();
    QList<QRect> geometries;
    for (QScreen const * const ecran : ecrans)
        geometries.append(ecran->geometry());
    qsizetype const indice = RoutinesGeometrie::DonneIndiceLePlusProche(geometries, point);
    return indice < 0 ? QGuiApplication::primaryScreen() : ecrans[indice];
}

QSize RoutinesGeneralesQt::DonneResolutionEcran(QScreen * ecran)
{
    return ecran ? ecran->size() : QSize();
}

void RoutinesGeneralesQt::AjusteDansEcran(QRect & rect, bool avecMarge, bool force,
                                          bool redimensionne)
{
    QScreen const * const ecran = EcranLePlusProche(rect.center());
    if (!ecran)
        return;
    if (!tourneeEnCours)
        QTimer::singleShot(0, qApp, &AnnonceAjustement);
    int const hauteurTitre = QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
    rect = RoutinesGeometrie::AjusteDans(ecran->availableGeometry(), rect,
                                         {hauteurTitre, avecMarge, force, redimensionne});
}

void RoutinesGeneralesQt::AjusteDansEcran(QWidget & widget, bool avecMarge, bool force,
                                          bool redimensionne)
{
    QRect const avant = DonneCadre(widget);
    QRect rect = avant;
    AjusteDansEcran(rect, avecMarge, force, redimensionne);
    if (rect.size() != avant.size())
        widget.resize(widget.size() + rect.size() - avant.size());
    if (rect != avant)
        widget.move(rect.topLeft());
}

void RoutinesGeneralesQt::CentreDansEcranActif(QRect & rect, bool plusHaut)
{
    if (QScreen const * const ecran = EcranLePlusProche(QCursor::pos()))
        rect.moveTo(
            RoutinesGeometrie::DonneCoinCentre(ecran->availableGeometry(), rect.size(), plusHaut));
}

void RoutinesGeneralesQt::CentreDansEcranActif(QWidget & widget, bool plusHaut)
{
    QRect const avant = DonneCadre(widget);
    QRect rect = avant;
    CentreDansEcranActif(rect, plusHaut);
    if (rect != avant)
        widget.move(rect.topLeft());
}

int RoutinesGeneralesQt::TrouveHauteurMaxSelonPositionDansEcran(QRect rect, bool avecMarge)
{
    QScreen const * const principal = QGuiApplication::primaryScreen();
    if (!principal)
        return rect.height();
    // Never shown: it only tells which screen Qt takes such a window to be on.
    QWidget fenetre;
    fenetre.setGeometry(rect);
    QScreen const * const ecran = fenetre.screen() ? fenetre.screen() : principal;
    return RoutinesGeometrie::DonneHauteurMax(ecran->availableGeometry(), rect, avecMarge);
}

void RoutinesFenetre::CentrageWidgetDansParentOuEcran(QWidget * widget, bool plusHaut)
{
    if (QWidget const * const parent = widget->parentWidget())
        CentreDansParent(*widget, *parent, plusHaut);
    else if (!CentreDansParentNatif(*widget))
        RoutinesGeneralesQt::CentreDansEcranActif(*widget, plusHaut);
}

RoutinesFenetre::eDirectionAffichage
RoutinesFenetre::DeplaceFenetreSiSorsDeLecranOuSurRect(QWidget * widget, QRect rect, QRect rectA,
                                                       QRect rectB, QRect rectC, int ecart,
                                                       eDirectionAffichage direction)
{
    QScreen const * const ecran = RoutinesGeneralesQt::EcranLePlusProche(rect.topLeft());
    if (!ecran)
        return direction;
    auto const placement = RoutinesGeometrie::PlaceHorsDe(
        {ecran->availableGeometry(), DonneBordures(*widget), rectA, rectB, rectC, ecart}, rect,
        direction);
    widget->move(placement.coin);
    return placement.direction;
}

QSize RoutinesFenetre::DonneTailleOptimaleFenetrePourEcran(QPoint const & point,
                                                           QSize const & taille)
{
    QScreen * const ecran = RoutinesGeneralesQt::EcranLePlusProche(point);
    if (!ecran)
        return taille;
    return RoutinesGeometrie::DonneTailleOptimale(RoutinesGeneralesQt::DonneResolutionEcran(ecran),
                                                  taille);
}

bool RoutinesFenetre::EcranEstEnBasseResolution(QPoint const & point)
{
    QScreen * const ecran = RoutinesGeneralesQt::EcranLePlusProche(point);
    return ecran &&
           RoutinesGeometrie::EstBasseResolution(RoutinesGeneralesQt::DonneResolutionEcran(ecran));
}
