// lists/Pastille.cpp
#include "lists/Pastille.h"

#include "foundation/TraductionGui.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QCoreApplication>
#include <QFile>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto kDelaiPression = 5s; // after which a press on the cross is forgotten
constexpr double kRayon = 2.0;      // of the corners, in pixels

// A single control, which the pill is for a screen reader.
class PastilleAccessible : public QAccessibleWidget
{
public:
    explicit PastilleAccessible(Pastille * pastille)
        : QAccessibleWidget(pastille, QAccessible::Button)
    {
    }

    QString text(QAccessible::Text nature) const override
    {
        QString const texte = QAccessibleWidget::text(nature);
        return nature == QAccessible::Description && texte.isEmpty()
                   ? static_cast<Pastille *>(widget())->DonneTitre()
                   : texte;
    }

    QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(QString const & nom) override
    {
        if (nom == pressAction()) // later: the host deletes the pill, and the reader is still in it
            QMetaObject::invokeMethod(widget(), "PriseExecuteAction", Qt::QueuedConnection);
        else
            QAccessibleWidget::doAction(nom);
    }
};

QAccessibleInterface * CreeInterface(QString const & classe, QObject * objet)
{
    auto * const pastille = classe == "Pastille"_L1 ? qobject_cast<Pastille *>(objet) : nullptr;
    return pastille ? new PastilleAccessible(pastille) : nullptr;
}

int nombreDePastilles = 0;

} // namespace

Pastille::Pastille(QString const & titre, QVariant const & donnees, QWidget * parent)
    : IWidgetChevronnable(parent)
    , monTitre(titre)
    , mesDonnees(donnees)
    , maCouleur(u"#BEBEBE"_s)
    , monDelai(this)
{
    // Qt keeps a factory once; it is taken out with the last pill, so that nothing is left behind
    // when the library is unloaded.
    ++nombreDePastilles;
    QAccessible::installFactory(&CreeInterface);
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(titre);
    monDelai.setSingleShot(true);
    monDelai.setTimerType(Qt::PreciseTimer); // a coarse one may be a quarter of a second late
    monDelai.setInterval(kDelaiPression);
    connect(&monDelai, &QTimer::timeout, this, &Pastille::PrisePressionTropLongue,
            Qt::UniqueConnection);
}

Pastille::~Pastille()
{
    // Without an application, Qt's list of factories may be gone, as at the end of the process.
    if (--nombreDePastilles == 0 && QCoreApplication::instance())
        QAccessible::removeFactory(&CreeInterface);
}

QVariant Pastille::DonneData() const
{
    return mesDonnees;
}

QRect Pastille::DonneRectBoutonSupprimer() const
{
    QRect const zone = rect();
    return {zone.right() - maTailleBouton - maMargeDroite,
            zone.top() + (zone.height() - maTailleBouton) / 2, maTailleBouton, maTailleBouton};
}

void Pastille::Supprime()
{
    hide();
    if (mesEmissions == 0)
        delete this;
    else
        deleteLater();
}

QAction * Pastille::DonneQAction()
{
    QString texte = DonneTitre();
    texte.replace(u'&', u"&&"_s); // a title has no mnemonic
    auto * const action = new QAction(texte, nullptr);
    // Queued: the menu is closed by then, and the host may delete what it likes.
    connect(action, &QAction::triggered, this, &Pastille::PriseExecuteAction,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
    return action;
}

QString Pastille::DonneTitre()
{
    return TraductionGuiFormatay(TexteGui("Enlever «{1}»"), {monTitre});
}

QSize Pastille::DonneTailleMin()
{
    return sizeHint();
}

QSize Pastille::DonneTailleMax()
{
    return sizeHint();
}

bool Pastille::EstUneAction()
{
    return true;
}

QSize Pastille::sizeHint() const
{
    ensurePolished();
    if (!maTailleTexte.isValid())
        maTailleTexte = fontMetrics().boundingRect(monTitre).size();
    int const largeur =
        maTailleTexte.width() + maTailleBouton + maMargeGauche + maMargeDroite + monEspacement;
    int const hauteur = maTailleTexte.height() + maMargeHaut + maMargeBas;
    return {largeur, std::max(hauteur, maTailleBouton)};
}

void Pastille::PriseExecuteAction()
{
    QPointer<Pastille> const vivante(this);
    ++mesEmissions;
    Q_EMIT PastilleASupprimer(mesDonnees);
    if (vivante)
        --mesEmissions;
}

void Pastille::changeEvent(QEvent * evenement)
{
    if (evenement->type() == QEvent::FontChange || evenement->type() == QEvent::StyleChange)
        maTailleTexte = QSize();
    IWidgetChevronnable::changeEvent(evenement);
}

void Pastille::keyPressEvent(QKeyEvent * evenement)
{
    bool const enleve = evenement->key() == Qt::Key_Delete ||
                        evenement->key() == Qt::Key_Backspace ||
                        evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter ||
                        evenement->key() == Qt::Key_Space;
    if (!enleve || (evenement->modifiers() & ~Qt::KeypadModifier)) {
        IWidgetChevronnable::keyPressEvent(evenement);
        return;
    }
    evenement->accept();
    // The focus goes on to the next pill: a key that is held down would take them all away.
    if (!evenement->isAutoRepeat())
        PriseExecuteAction();
}

void Pastille::leaveEvent(QEvent * evenement)
{
    MetsSurvol(false); // the mouse may go from the cross to the outside in one step
    IWidgetChevronnable::leaveEvent(evenement);
}

void Pastille::mouseMoveEvent(QMouseEvent * evenement)
{
    bool const surLeBouton = DonneRectBoutonSupprimer().contains(evenement->position().toPoint());
    setCursor(surLeBouton ? Qt::PointingHandCursor : Qt::ArrowCursor);
    MetsSurvol(surLeBouton);
}

void Pastille::mousePressEvent(QMouseEvent * evenement)
{
    if (evenement->button() != Qt::LeftButton) {
        IWidgetChevronnable::mousePressEvent(evenement);
        return;
    }
    monBoutonEnfonce = DonneRectBoutonSupprimer().contains(evenement->position().toPoint());
    // One timer for all presses: that of an earlier one must not end this one.
    if (monBoutonEnfonce)
        monDelai.start();
    else
        monDelai.stop();
}

void Pastille::mouseReleaseEvent(QMouseEvent * evenement)
{
    if (evenement->button() != Qt::LeftButton) {
        IWidgetChevronnable::mouseReleaseEvent(evenement);
        return;
    }
    bool const execute =
        monBoutonEnfonce && DonneRectBoutonSupprimer().contains(evenement->position().toPoint());
    monBoutonEnfonce = false;
    monDelai.stop();
    if (execute)
        PriseExecuteAction();
}

void Pastille::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(Qt::transparent);
    peintre.setBrush(maCouleur);
    peintre.drawRoundedRect(rect(), kRayon, kRayon);

    QRect const texte = rect().adjusted(
        maMargeGauche, maMargeHaut, -(maTailleBouton + monEspacement + maMargeDroite), -maMargeBas);
    peintre.setPen(Qt::black);
    peintre.drawText(texte, Qt::AlignHCenter | Qt::AlignVCenter, monTitre);
    PreteIcone().paint(&peintre, DonneRectBoutonSupprimer());

    if (!hasFocus())
        return;
    peintre.setBrush(Qt::NoBrush);
    peintre.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRayon, kRayon);
}

void Pastille::PrisePressionTropLongue()
{
    monBoutonEnfonce = false;
}

// Qt would warn of an image that the application does not supply.
QIcon const & Pastille::PreteIcone()
{
    QIcon & icone = monSurvol ? monIconeSurvol : monIcone;
    QString const chemin = monSurvol ? u":/Images/boutonSupprimerPastilleHover.svg"_s
                                     : u":/Images/boutonSupprimerPastille.svg"_s;
    if (icone.isNull() && QFile::exists(chemin))
        icone = QIcon(chemin);
    return icone;
}

void Pastille::MetsSurvol(bool survole)
{
    monSurvol = survole;
    update();
}
