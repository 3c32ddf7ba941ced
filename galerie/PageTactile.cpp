// galerie/PageTactile.cpp
#include "PageTactile.h"

#include "GestesJoues.h"
#include "ImageZoomable.h"
#include "Pages.h"
#include "TraceSignaux.h"
#include "TraductionGalerie.h"

#include "foundation/Polices.h"
#include "touch/DDefileurTactile.h"
#include "touch/DZoomTactile.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDynamicPropertyChangeEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHoverEvent>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kHauteurInterieure = 110; // logical pixels
constexpr int kRangs = 200;
constexpr int kParagraphes = 6;
constexpr double kEcartement = 1.1; // of each step
constexpr char kTactile[] = "tactile";

template <typename Enumeration>
QString DonneCle(Enumeration valeur)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enumeration>().valueToKey(valeur));
}

// Whether the trace tells of what comes to an area itself: its property, and the focus that hands
// the finger from one of two nested areas to the other.
bool EstPourAire(QObject const & aire, QEvent const & evenement)
{
    switch (evenement.type()) {
    case QEvent::DynamicPropertyChange:
        return static_cast<QDynamicPropertyChangeEvent const &>(evenement).propertyName() ==
               kTactile;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        return qobject_cast<QScrollArea const *>(&aire) != nullptr;
    default:
        return false;
    }
}

bool EstPourViewport(QEvent const & evenement)
{
    switch (evenement.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return true;
    case QEvent::MouseMove:
        return static_cast<QMouseEvent const &>(evenement).buttons() != Qt::NoButton;
    case QEvent::HoverLeave:
        // The manager's: a mouse that leaves is at (-1, -1) then.
        return static_cast<QHoverEvent const &>(evenement).position().isNull();
    default:
        return false;
    }
}

QLabel * CreeParagraphe(ChaineLocalisable texte)
{
    auto * const paragraphe = new QLabel(TraductionGalerie(texte));
    paragraphe->setWordWrap(true);
    return paragraphe;
}

QScrollArea * CreeAire(QString const & nom)
{
    auto * const aire = new QScrollArea;
    aire->setAccessibleName(nom);
    aire->setWidgetResizable(true);
    auto * const contenu = new QWidget;
    contenu->setLayout(new QVBoxLayout);
    aire->setWidget(contenu);
    return aire;
}

} // namespace

PageTactile::PageTactile(QWidget * parent)
    : QWidget(parent)
    , mesGestes(new GestesJoues(this))
{
    auto * const disposition = CreeMiseEnPage(
        this, TraductionGalerie(TexteGalerie("Tactile")),
        TraductionGalerie(TexteGalerie(
            "Ce qui devient d’un doigt et d’un stylet. Sans écran tactile, les boutons jouent les "
            "gestes.")));
    maTrace = new TraceSignaux(TraductionGalerie(TexteGalerie("Trace")));
    auto * const grille = new QGridLayout;
    grille->addWidget(CreeAires(), 0, 0);
    grille->addWidget(CreeImage(), 1, 0);
    grille->addWidget(CreeListe(), 0, 1);
    grille->addWidget(EncadreTrace(*maTrace), 1, 1);
    grille->setColumnStretch(0, 1);
    grille->setColumnStretch(1, 1);
    grille->setRowStretch(0, 1);
    grille->setRowStretch(1, 1);
    disposition->addLayout(grille, 1);
    disposition->addLayout(CreeBoutons());
    MontreFacteur();
    Branche();
    // Later: the page is in its window by then.
    QMetaObject::invokeMethod(this, &PageTactile::Demontre, Qt::QueuedConnection);
}

bool PageTactile::eventFilter(QObject * objet, QEvent * evenement)
{
    bool const aire = qobject_cast<QAbstractScrollArea const *>(objet) != nullptr;
    if (aire ? EstPourAire(*objet, *evenement) : EstPourViewport(*evenement)) {
        QString const quoi = evenement->type() == QEvent::DynamicPropertyChange
                                 ? u"tactile = "_s + objet->property(kTactile).toString()
                                 : DonneCle(evenement->type());
        maTrace->Ajoute(static_cast<QWidget *>(objet)->accessibleName() + u" · "_s + quoi);
    }
    return QWidget::eventFilter(objet, evenement);
}

QWidget * PageTactile::CreeAires()
{
    QString const exterieure = TraductionGalerie(TexteGalerie("Aire extérieure"));
    QString const interieure = TraductionGalerie(TexteGalerie("Aire intérieure"));
    monAireExterieure = CreeAire(exterieure);
    monAireInterieure = CreeAire(interieure);
    monAireInterieure->setFixedHeight(kHauteurInterieure);
    for (int i = 0; i < kParagraphes; ++i)
        monAireInterieure->widget()->layout()->addWidget(
            CreeParagraphe(TexteGalerie("L’aire intérieure défile sous le doigt, et seule tant "
                                        "qu’elle a le focus du clavier.")));
    auto * const contenu = monAireExterieure->widget()->layout();
    auto const texte = TexteGalerie("L’aire extérieure défile aussi, où que le doigt se pose en "
                                    "dehors de l’autre.");
    contenu->addWidget(CreeParagraphe(texte));
    contenu->addWidget(monAireInterieure);
    for (int i = 0; i < kParagraphes; ++i)
        contenu->addWidget(CreeParagraphe(texte));
    RendsTactile(*monAireExterieure, exterieure);
    RendsTactile(*monAireInterieure, interieure);

    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Une aire dans une autre")));
    auto * const disposition = new QVBoxLayout(groupe);
    disposition->addWidget(monAireExterieure);
    return groupe;
}

QWidget * PageTactile::CreeListe()
{
    QString const nom = TraductionGalerie(TexteGalerie("Liste"));
    maListe = new QListWidget;
    maListe->setObjectName(u"listeTactile"_s);
    maListe->setAccessibleName(nom);
    for (int rang = 1; rang <= kRangs; ++rang)
        maListe->addItem(
            TraductionGalerie(TexteGalerie("Rang {1}"), {UniChaine(locale().toString(rang))}));
    RendsTactile(*maListe, nom);

    auto * const groupe = new QGroupBox(nom);
    auto * const disposition = new QVBoxLayout(groupe);
    disposition->addWidget(maListe);
    return groupe;
}

QWidget * PageTactile::CreeImage()
{
    monImage =
        new ImageZoomable(RoutinesGeneralesQt::DonnePixmapAvecDPI(u":/images/echantillon.png"_s));
    monImage->setAccessibleName(TraductionGalerie(TexteGalerie("Image à pincer")));
    monFacteur = new QLabel;
    monFacteur->setObjectName(u"facteur"_s);
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Image à pincer")));
    auto * const disposition = new QVBoxLayout(groupe);
    disposition->addWidget(monImage, 1);
    disposition->addWidget(monFacteur);
    return groupe;
}

QLayout * PageTactile::CreeBoutons()
{
    maCible = new QComboBox;
    maCible->setObjectName(u"cible"_s);
    for (QWidget const * const aire :
         {static_cast<QWidget *>(maListe), static_cast<QWidget *>(monAireInterieure),
          static_cast<QWidget *>(monAireExterieure)})
        maCible->addItem(aire->accessibleName());
    auto * const etiquette = new QLabel(TraductionGalerie(TexteGalerie("Ci&ble")));
    etiquette->setBuddy(maCible);
    auto * const boutons = new QHBoxLayout;
    boutons->addWidget(etiquette);
    boutons->addWidget(maCible);
    struct
    {
        QPushButton *& bouton;
        QString nom;
        ChaineLocalisable texte;
    } const descriptions[] = {
        {monToucher, u"toucher"_s, TexteGalerie("&Toucher")},
        {monDoubleToucher, u"doubleToucher"_s, TexteGalerie("Toucher &deux fois")},
        {monGlisser, u"glisser"_s, TexteGalerie("&Glisser")},
        {monStylet, u"stylet"_s, TexteGalerie("&Stylet")},
        {monEcarter, u"ecarter"_s, TexteGalerie("É&carter")},
        {monRapprocher, u"rapprocher"_s, TexteGalerie("&Rapprocher")},
    };
    for (auto const & description : descriptions) {
        description.bouton = new QPushButton(TraductionGalerie(description.texte));
        description.bouton->setObjectName(description.nom);
        boutons->addWidget(description.bouton);
    }
    boutons->addStretch();
    return boutons;
}

void PageTactile::RendsTactile(QAbstractScrollArea & aire, QString const & nom)
{
    aire.viewport()->setAccessibleName(nom);
    // Before the managers: their filters are asked first then, and what they swallow is not told;
    // what they do about a state is told after it.
    aire.viewport()->installEventFilter(this);
    // Not a manager's own signal: after a hand-over and back it tells of the area around, too.
    connect(QScroller::scroller(aire.viewport()), &QScroller::stateChanged, this,
            [this, nom](QScroller::State etat) {
                maTrace->Ajoute(nom + u" · QScroller::"_s + DonneCle(etat));
            });
    new DDefileurTactile(&aire);
    aire.installEventFilter(this); // last: the focus is told before what comes of it
}

void PageTactile::Branche()
{
    connect(monToucher, &QPushButton::clicked, this, &PageTactile::PriseToucher,
            Qt::UniqueConnection);
    connect(monDoubleToucher, &QPushButton::clicked, this, &PageTactile::PriseDoubleToucher,
            Qt::UniqueConnection);
    connect(monGlisser, &QPushButton::clicked, this, &PageTactile::PriseGlisser,
            Qt::UniqueConnection);
    connect(monStylet, &QPushButton::clicked, this, &PageTactile::PriseStylet,
            Qt::UniqueConnection);
    connect(monEcarter, &QPushButton::clicked, this, &PageTactile::PriseEcarter,
            Qt::UniqueConnection);
    connect(monRapprocher, &QPushButton::clicked, this, &PageTactile::PriseRapprocher,
            Qt::UniqueConnection);
    auto const * const zoom = new DZoomTactile(monImage);
    connect(zoom, &DZoomTactile::SignalZoomTactile, this, &PageTactile::PriseZoom,
            Qt::UniqueConnection);
}

void PageTactile::Annonce(QPushButton const & bouton)
{
    maTrace->Ajoute(u"— %1 —"_s.arg(bouton.text().remove(u'&')));
}

void PageTactile::PriseToucher()
{
    Annonce(*monToucher);
    mesGestes->Touche(PreteCible(), 1);
}

void PageTactile::PriseDoubleToucher()
{
    Annonce(*monDoubleToucher);
    mesGestes->Touche(PreteCible(), 2);
}

void PageTactile::PriseGlisser()
{
    Annonce(*monGlisser);
    mesGestes->Glisse(PreteCible());
}

void PageTactile::PriseStylet()
{
    Annonce(*monStylet);
    mesGestes->PoseStylet(PreteCible());
}

void PageTactile::PriseEcarter()
{
    Annonce(*monEcarter);
    mesGestes->Pince(*monImage, kEcartement);
}

void PageTactile::PriseRapprocher()
{
    Annonce(*monRapprocher);
    mesGestes->Pince(*monImage, 1 / kEcartement);
}

void PageTactile::PriseZoom(double facteur)
{
    monImage->Zoome(facteur);
    maTrace->Ajoute(u"DZoomTactile::SignalZoomTactile(%1)"_s.arg(facteur));
    MontreFacteur();
}

void PageTactile::MontreFacteur()
{
    monFacteur->setText(
        TraductionGalerie(TexteGalerie("Zoom : {1} %"),
                          {UniChaine(locale().toString(qRound(100 * monImage->DonneFacteur())))}));
}

// The trace shows what it is for before the user has touched anything.
void PageTactile::Demontre()
{
    grab(QRect(0, 0, 1, 1)); // a layout that has not had its turn has it now
    PriseStylet();
    PriseEcarter();
    Annonce(*monGlisser);
    mesGestes->Entraine(*maListe);
    QCoreApplication::sendPostedEvents(maListe->viewport(), QEvent::HoverLeave); // in a picture too
}

QWidget & PageTactile::PreteCible() const
{
    QAbstractScrollArea const * const aires[] = {maListe, monAireInterieure, monAireExterieure};
    return *aires[std::max(maCible->currentIndex(), 0)]->viewport();
}
