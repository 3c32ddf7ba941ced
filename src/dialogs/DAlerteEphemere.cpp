// dialogs/DAlerteEphemere.cpp
#include "dialogs/DAlerteEphemere_p.h"

#include "foundation/GeometrieEcran.h"

#include "noyau/DAlerteInfo.h"
#include "noyau/RoutinesBureau.h"

#include <QAccessibleWidget>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QTextDocumentFragment>
#include <QTimer>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

// Milliseconds.
constexpr int kDureeUsuelle = 1100;
constexpr int kDureeFade = 800;
constexpr int kPasFade = 50;

constexpr float kDureeTropLongue = 2147483648.0F; // ms, the first that an int does not hold

constexpr double kRayon = 6.0; // logical pixels

// The colours of the bubble are its own: it looks the same in every theme, so its text must not
// follow a dark one.
constexpr QColor kCouleurFond(235, 235, 235);
constexpr char16_t kFeuille[] = u"color: rgb(32, 32, 32); background: transparent";

// Deliberate: nothing is escaped, mark-up in an alert is rendered.
QString ComposeTexte(QString const & message, QString const & explication)
{
    QString const suite = explication.isEmpty()
                              ? u"</b></font>"_s
                              : u"</b></font><br><br><font size=+1>"_s + explication + u"</font>"_s;
    return u"<html><font size=+1><b>"_s + message + suite + u"</html>"_s;
}

QAccessibleInterface * CreeInterfaceAccessible(QString const & classe, QObject * objet)
{
    auto * const bulle = classe == "DAlerteEphemere"_L1 ? qobject_cast<QWidget *>(objet) : nullptr;
    return bulle ? new QAccessibleWidget(bulle, QAccessible::AlertMessage) : nullptr;
}

} // namespace

int RoutinesBulle::DonneDureeAffichage(float secondes)
{
    if (secondes == -1.0F || std::isnan(secondes))
        return kDureeUsuelle;
    float const duree = secondes * 1000.0F;
    if (duree >= kDureeTropLongue)
        return std::numeric_limits<int>::max();
    // A timer refuses a negative time, and the bubble would stay.
    return duree > 0.0F ? static_cast<int>(duree) : 0;
}

std::optional<double> RoutinesBulle::DonneOpacite(quint64 ecoule)
{
    if (ecoule > kDureeFade)
        return std::nullopt;
    float const part = static_cast<float>(ecoule) / static_cast<float>(kDureeFade);
    return kOpacite - static_cast<double>(part) * kOpacite;
}

DAlerteEphemere * DAlerteEphemere::alerteCourante = nullptr;

// NOLINTNEXTLINE(performance-unnecessary-value-param): a pixmap is shared, not copied
void DAlerteEphemere::Affiche(QWidget * parent, DAlerteInfo const & info, QPixmap pixmap)
{
    delete alerteCourante; // its destructor clears the pointer
    auto * const bulle =
        new DAlerteEphemere(parent, info.DonneMessage(), info.DonneExplication(), pixmap,
                            RoutinesBulle::DonneDureeAffichage(info.dureeAffichage));
    delete alerteCourante; // who hears of the showing may have shown another
    alerteCourante = bulle;
}

// A window from the start: as a plain child it would be centred in the coordinates of its parent,
// and would have no opacity before the first frame.
DAlerteEphemere::DAlerteEphemere(QWidget * parent, QString const & message,
                                 QString const & explication, QPixmap const & pixmap, int duree)
    : QWidget(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
{
    // First, for Qt keeps the interface that it makes for a widget; and only while there is a
    // bubble, so that nothing of ours is left behind when the library is unloaded.
    QAccessible::installFactory(&CreeInterfaceAccessible);
    setAttribute(Qt::WA_ShowWithoutActivating, true);
    setAttribute(Qt::WA_TranslucentBackground, true);
    CreeContenu(ComposeTexte(message, explication), pixmap);
    adjustSize();
    setWindowOpacity(RoutinesBulle::kOpacite);
    RoutinesFenetre::CentrageWidgetDansParentOuEcran(this, false);
    show();
    AnnonceAuxLecteursDEcran();
    CreeMinuteries(duree);
}

DAlerteEphemere::~DAlerteEphemere()
{
    QAccessible::removeFactory(&CreeInterfaceAccessible);
    if (alerteCourante == this)
        alerteCourante = nullptr;
}

void DAlerteEphemere::CreeContenu(QString const & texte, QPixmap const & pixmap)
{
    maDisposition = new QGridLayout(this);
    auto * const image = new QLabel(this);
    image->setPixmap(pixmap);
    monTexte = new QLabel(this);
    monTexte->setWordWrap(false);
    monTexte->setText(texte);
    // A sheet, for that of an application may colour every label.
    for (QLabel * const etiquette : {image, monTexte})
        etiquette->setStyleSheet(QString::fromUtf16(kFeuille));
    if (!pixmap.isNull())
        maDisposition->addWidget(image, 0, 0, Qt::AlignCenter);
    maDisposition->addWidget(monTexte, 0, 1, Qt::AlignCenter);
    setAccessibleName(QTextDocumentFragment::fromHtml(texte).toPlainText());
}

void DAlerteEphemere::CreeMinuteries(int duree)
{
    maMinuterieAffichage = new QTimer(this);
    maMinuterieAffichage->setSingleShot(true);
    maMinuterieAffichage->setInterval(duree);
    connect(maMinuterieAffichage, &QTimer::timeout, this, &DAlerteEphemere::PriseFinAffichageOpaque,
            Qt::UniqueConnection);
    maMinuterieAffichage->start();

    maMinuterieFade = new QTimer(this);
    maMinuterieFade->setInterval(kPasFade);
    connect(maMinuterieFade, &QTimer::timeout, this, &DAlerteEphemere::PriseAnimationFade,
            Qt::UniqueConnection);
}

void DAlerteEphemere::AnnonceAuxLecteursDEcran()
{
    // Qt announces no window of the tool tip kind by itself, and the bubble never gets the focus.
    for (QAccessible::Event const nature : {QAccessible::ObjectShow, QAccessible::Alert}) {
        QAccessibleEvent evenement(this, nature);
        QAccessible::updateAccessibility(&evenement);
    }
}

void DAlerteEphemere::paintEvent(QPaintEvent * evenement)
{
    {
        QPainter peintre(this);
        peintre.setRenderHint(QPainter::Antialiasing);
        peintre.setPen(Qt::NoPen);
        peintre.setBrush(kCouleurFond);
        peintre.drawRoundedRect(rect(), kRayon, kRayon);
    }
    QWidget::paintEvent(evenement);
}

void DAlerteEphemere::PriseFinAffichageOpaque()
{
    debutFade = DonneTempsAbsoluEnMilliSecondes();
    maMinuterieFade->start();
}

void DAlerteEphemere::PriseAnimationFade()
{
    auto const opacite = RoutinesBulle::DonneOpacite(DonneTempsAbsoluEnMilliSecondes() - debutFade);
    if (opacite) {
        setWindowOpacity(*opacite);
        return;
    }
    maMinuterieFade->stop();
    QPointer<DAlerteEphemere> const moi(this); // who hears of the closing may show another alert
    close();
    if (moi)
        moi->deleteLater();
}
