// tests/dialogs/tst_DAlerteEphemere.cpp
#include "dialogs/DAlerteEphemere_p.h"

#include "noyau/DAlerteInfo.h"
#include "noyau/RoutinesBureau.h"

#include <QtTest>

#include <QAccessible>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using RoutinesBulle::DonneDureeAffichage;
using RoutinesBulle::DonneOpacite;

namespace {

constexpr float kLongtemps = 3600.0F; // s, no test lasts as long
constexpr QColor kFond(235, 235, 235);

class AlerteExpliquee : public DAlerteInfo
{
public:
    AlerteExpliquee(QString const & message, QString const & explication, float duree = kLongtemps)
        : DAlerteInfo(kEphemere, UniChaine(message))
        , monExplication(explication)
    {
        dureeAffichage = duree;
    }
    UniChaine DonneExplication() const override { return UniChaine(monExplication); }

private:
    QString monExplication;
};

// The bubbles that exist, hidden ones too.
QList<DAlerteEphemere *> Bulles()
{
    QList<DAlerteEphemere *> bulles;
    for (QWidget * const fenetre : QApplication::topLevelWidgets())
        if (auto * const bulle = qobject_cast<DAlerteEphemere *>(fenetre))
            bulles.append(bulle);
    return bulles;
}

DAlerteEphemere * Affiche(QWidget * parent = nullptr, float duree = kLongtemps,
                          QString const & message = u"message"_s)
{
    DAlerteEphemere::Affiche(parent, AlerteExpliquee(message, {}, duree), {});
    return Bulles().size() == 1 ? Bulles().first() : nullptr;
}

QTimer * MinuterieAffichage(DAlerteEphemere const & bulle)
{
    for (QTimer * const minuterie : bulle.findChildren<QTimer *>())
        if (minuterie->isSingleShot())
            return minuterie;
    return nullptr;
}

QTimer * MinuterieFade(DAlerteEphemere const & bulle)
{
    for (QTimer * const minuterie : bulle.findChildren<QTimer *>())
        if (!minuterie->isSingleShot())
            return minuterie;
    return nullptr;
}

QGridLayout * Grille(DAlerteEphemere const & bulle)
{
    return qobject_cast<QGridLayout *>(bulle.layout());
}

QLabel * Texte(DAlerteEphemere const & bulle)
{
    return qobject_cast<QLabel *>(Grille(bulle)->itemAtPosition(0, 1)->widget());
}

// Qt keeps an opacity in 255 steps.
bool OpacitesVoisines(double gauche, double droite)
{
    return std::abs(gauche - droite) <= 1.0 / 255.0;
}

bool CentresVoisins(QRect const & gauche, QRect const & droite)
{
    QPoint const ecart = gauche.center() - droite.center();
    return ecart.manhattanLength() <= 2;
}

} // namespace

class tst_DAlerteEphemere : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void dureeAffichage_data();
    void dureeAffichage();
    void opacite_data();
    void opacite();

    void texteCompose_data();
    void texteCompose();
    void texteNonEchappay();
    void longMessageSurUneLigne();
    void imageAGauche();
    void imageNulleNonPlacee();

    void fenetreSansFocus();
    void opaciteDesLaPremiereImage_data();
    void opaciteDesLaPremiereImage();
    void centreeDansParent_data();
    void centreeDansParent();
    void centreeDansEcranSansParent();
    void minuteries();
    void apparence();
    void texteLisibleSurSonFond_data();
    void texteLisibleSurSonFond();
    void alertePourLecteursDEcran();

    void dureeNulleCommenceLeFade();
    void fadeLineaire_data();
    void fadeLineaire();
    void disparaitSeule();
    void remplaceeAussitot_data();
    void remplaceeAussitot();
    void remplaceePendantSaFermeture();
    void autreBullePendantQuElleApparait();
    void parentDetruit();
    void detruiteParUnAutre();
};

void tst_DAlerteEphemere::cleanup()
{
    qDeleteAll(Bulles());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DAlerteEphemere::dureeAffichage_data()
{
    constexpr int kMax = std::numeric_limits<int>::max();
    QTest::addColumn<float>("secondes");
    QTest::addColumn<int>("duree");
    QTest::newRow("usual") << -1.0F << 1100;
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << 1100;
    QTest::newRow("none") << 0.0F << 0;
    QTest::newRow("seconds") << 2.5F << 2500;
    QTest::newRow("truncated") << 0.0019F << 1;
    QTest::newRow("below a millisecond") << 0.0009F << 0;
    QTest::newRow("in single precision") << 0.7F << 700;
    QTest::newRow("nearly the usual mark") << -0.999F << 0;
    QTest::newRow("negative") << -2.0F << 0;
    QTest::newRow("very negative") << std::numeric_limits<float>::lowest() << 0;
    QTest::newRow("last that fits") << 2147483.5F << 2147483520;
    QTest::newRow("first that does not") << 2147483.75F << kMax;
    QTest::newRow("huge") << std::numeric_limits<float>::max() << kMax;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << kMax;
}

void tst_DAlerteEphemere::dureeAffichage()
{
    QFETCH(float, secondes);
    QTEST(DonneDureeAffichage(secondes), "duree");
}

void tst_DAlerteEphemere::opacite_data()
{
    QTest::addColumn<quint64>("ecoule");
    QTest::addColumn<double>("attendue"); // negative: gone
    QTest::newRow("start") << quint64(0) << 0.9;
    QTest::newRow("quarter") << quint64(200) << 0.675;
    QTest::newRow("half") << quint64(400) << 0.45;
    QTest::newRow("end") << quint64(800) << 0.0;
    QTest::newRow("behind the end") << quint64(801) << -1.0;
    QTest::newRow("long behind") << std::numeric_limits<quint64>::max() << -1.0;
}

void tst_DAlerteEphemere::opacite()
{
    QFETCH(quint64, ecoule);
    QFETCH(double, attendue);
    QCOMPARE(DonneOpacite(ecoule).has_value(), attendue >= 0.0);
    if (attendue >= 0.0)
        QVERIFY(std::abs(*DonneOpacite(ecoule) - attendue) < 1e-6);
}

void tst_DAlerteEphemere::texteCompose_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("explication");
    QTest::addColumn<QString>("texte");
    QTest::newRow("message alone")
        << u"Copié"_s << QString() << u"<html><font size=+1><b>Copié</b></font></html>"_s;
    QTest::newRow("with an explanation")
        << u"Copié"_s << u"Deux mots"_s
        << u"<html><font size=+1><b>Copié</b></font><br><br><font size=+1>Deux mots</font></html>"_s;
    QTest::newRow("no message")
        << QString() << u"Deux mots"_s
        << u"<html><font size=+1><b></b></font><br><br><font size=+1>Deux mots</font></html>"_s;
    QTest::newRow("nothing") << QString() << QString()
                             << u"<html><font size=+1><b></b></font></html>"_s;
    QTest::newRow("mark-up as it is")
        << u"a < b & <i>c</i>"_s << u"<u>d</u>"_s
        << u"<html><font size=+1><b>a < b & <i>c</i></b></font><br><br><font size=+1><u>d</u></font></html>"_s;
}

void tst_DAlerteEphemere::texteCompose()
{
    QFETCH(QString, message);
    QFETCH(QString, explication);
    DAlerteEphemere::Affiche(nullptr, AlerteExpliquee(message, explication), {});
    QCOMPARE(Bulles().size(), 1);
    QTEST(Texte(*Bulles().first())->text(), "texte");
}

void tst_DAlerteEphemere::texteNonEchappay()
{
    DAlerteEphemere const * const bulle = Affiche(nullptr, kLongtemps, u"un <i>deux</i>"_s);
    QCOMPARE(bulle->accessibleName(), u"un deux"_s);
    QLabel const * const texte = Texte(*bulle);
    QVERIFY(texte->textFormat() == Qt::RichText ||
            (texte->textFormat() == Qt::AutoText && Qt::mightBeRichText(texte->text())));
}

void tst_DAlerteEphemere::longMessageSurUneLigne()
{
    int const hauteur = Affiche()->height();
    DAlerteEphemere const * const bulle = Affiche(nullptr, kLongtemps, u"mot "_s.repeated(300));
    QVERIFY(!Texte(*bulle)->wordWrap());
    QCOMPARE(bulle->height(), hauteur);
    QVERIFY(Texte(*bulle)->width() >= Texte(*bulle)->sizeHint().width());
    QVERIFY(CentresVoisins(bulle->geometry(), bulle->screen()->availableGeometry()));
}

void tst_DAlerteEphemere::imageAGauche()
{
    QPixmap image(32, 48);
    image.fill(Qt::blue);
    DAlerteEphemere::Affiche(nullptr, AlerteExpliquee(u"message"_s, {}), image);
    DAlerteEphemere const & bulle = *Bulles().first();
    QLayoutItem * const place = Grille(bulle)->itemAtPosition(0, 0);
    QVERIFY(place);
    QCOMPARE(place->alignment(), Qt::AlignCenter);
    QCOMPARE(qobject_cast<QLabel *>(place->widget())->pixmap().size(), image.size());
    QCOMPARE(Grille(bulle)->itemAtPosition(0, 1)->alignment(), Qt::AlignCenter);
    QCOMPARE(Grille(bulle)->count(), 2);
    QVERIFY(place->geometry().right() < Texte(bulle)->x());
}

void tst_DAlerteEphemere::imageNulleNonPlacee()
{
    DAlerteEphemere const & bulle = *Affiche();
    QCOMPARE(Grille(bulle)->count(), 1);
    QVERIFY(!Grille(bulle)->itemAtPosition(0, 0));
    QVERIFY(Grille(bulle)->itemAtPosition(0, 1));
    QCOMPARE(bulle.findChildren<QLabel *>().size(), 2);
    for (QLabel const * const etiquette : bulle.findChildren<QLabel *>())
        QVERIFY(etiquette == Texte(bulle) || etiquette->pixmap(Qt::ReturnByValue).isNull());
}

void tst_DAlerteEphemere::fenetreSansFocus()
{
    QWidget parent;
    DAlerteEphemere const * const bulle = Affiche(&parent);
    QVERIFY(bulle->isVisible());
    QVERIFY(bulle->isWindow());
    QCOMPARE(bulle->parentWidget(), &parent);
    QCOMPARE(bulle->windowType(), Qt::ToolTip);
    QVERIFY(bulle->windowFlags().testFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint));
    QVERIFY(bulle->testAttribute(Qt::WA_ShowWithoutActivating));
    QVERIFY(bulle->testAttribute(Qt::WA_TranslucentBackground));
}

void tst_DAlerteEphemere::opaciteDesLaPremiereImage_data()
{
    QTest::addColumn<bool>("avecParent");
    QTest::newRow("free-standing") << false;
    QTest::newRow("with a parent") << true;
}

void tst_DAlerteEphemere::opaciteDesLaPremiereImage()
{
    QFETCH(bool, avecParent);
    QWidget parent;
    DAlerteEphemere const * const bulle = Affiche(avecParent ? &parent : nullptr);
    QVERIFY(OpacitesVoisines(bulle->windowOpacity(), 0.9));
    QVERIFY(OpacitesVoisines(bulle->windowHandle()->opacity(), 0.9));
}

void tst_DAlerteEphemere::centreeDansParent_data()
{
    QTest::addColumn<bool>("enfant");
    QTest::newRow("window") << false;
    QTest::newRow("widget inside a window") << true;
}

void tst_DAlerteEphemere::centreeDansParent()
{
    QFETCH(bool, enfant);
    QWidget fenetre(nullptr, Qt::FramelessWindowHint);
    QWidget dedans(&fenetre);
    fenetre.setGeometry(210, 150, 400, 300);
    dedans.setGeometry(90, 80, 310, 220);
    fenetre.show();
    QWidget & parent = enfant ? dedans : fenetre;

    DAlerteEphemere const * const bulle = Affiche(&parent);
    QVERIFY(
        CentresVoisins(bulle->geometry(), QRect(parent.mapToGlobal(QPoint(0, 0)), parent.size())));
}

void tst_DAlerteEphemere::centreeDansEcranSansParent()
{
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().center());
    DAlerteEphemere const * const bulle = Affiche();
    QVERIFY(
        CentresVoisins(bulle->geometry(), QGuiApplication::primaryScreen()->availableGeometry()));
}

void tst_DAlerteEphemere::minuteries()
{
    DAlerteEphemere const & bulle = *Affiche(nullptr, 12.5F);
    QCOMPARE(bulle.findChildren<QTimer *>().size(), 2);
    QCOMPARE(MinuterieAffichage(bulle)->interval(), 12500);
    QVERIFY(MinuterieAffichage(bulle)->isActive());
    QCOMPARE(MinuterieFade(bulle)->interval(), 50);
    QVERIFY(!MinuterieFade(bulle)->isActive());

    DAlerteEphemere const & usuelle = *Affiche(nullptr, -1.0F);
    QCOMPARE(MinuterieAffichage(usuelle)->interval(), 1100);
}

void tst_DAlerteEphemere::apparence()
{
    DAlerteEphemere * const bulle = Affiche();
    QImage const image = bulle->grab().toImage();
    int const droite = image.width() - 1;
    int const bas = image.height() - 1;
    for (QPoint const coin : {QPoint(0, 0), QPoint(droite, 0), QPoint(0, bas), QPoint(droite, bas)})
        QCOMPARE(image.pixelColor(coin).alpha(), 0);
    // The corners are round over 6 pixels, and the edges reach the border of the window.
    for (QPoint const bord : {QPoint(6, 0), QPoint(0, 6), QPoint(droite - 6, bas),
                              QPoint(droite, bas - 6), QPoint(3, 3)})
        QCOMPARE(image.pixelColor(bord), kFond);
    QVERIFY(image.pixelColor(1, 1).alpha() < 255); // the curve, smoothed
}

void tst_DAlerteEphemere::texteLisibleSurSonFond_data()
{
    QTest::addColumn<bool>("sombre");
    QTest::addColumn<QString>("feuille");
    QTest::newRow("light theme") << false << QString();
    QTest::newRow("dark palette") << true << QString();
    QTest::newRow("dark sheet") << false << u"* { color: white; background: black }"_s;
    QTest::newRow("dark sheet for labels")
        << true << u"QLabel { color: white; background: black }"_s;
}

void tst_DAlerteEphemere::texteLisibleSurSonFond()
{
    QFETCH(bool, sombre);
    QFETCH(QString, feuille);
    QPalette const avant = QApplication::palette();
    if (sombre)
        QApplication::setPalette(QPalette(Qt::white, Qt::black, Qt::gray, Qt::black, Qt::darkGray,
                                          Qt::white, Qt::white, Qt::black, Qt::black));
    qApp->setStyleSheet(feuille);

    DAlerteEphemere * const bulle = Affiche();
    QLabel const * const texte = Texte(*bulle);
    QColor const encre = texte->palette().color(texte->foregroundRole());
    QImage const image = bulle->grab().toImage();
    qApp->setStyleSheet({});
    QApplication::setPalette(avant);

    QVERIFY(encre.lightness() < 60);
    QCOMPARE(image.pixelColor(texte->pos()), kFond);
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
}

// Whether the announcement arrives can't be asked: Qt sends none on a platform without assistive
// technology.
void tst_DAlerteEphemere::alertePourLecteursDEcran()
{
    DAlerteEphemere::Affiche(nullptr, AlerteExpliquee(u"Copié &amp; <i>collé</i>"_s, u"Oui"_s), {});
    QAccessibleInterface const * const lue =
        QAccessible::queryAccessibleInterface(Bulles().first());
    QCOMPARE(lue->role(), QAccessible::AlertMessage);
    QCOMPARE(lue->text(QAccessible::Name), u"Copié & collé\n\nOui"_s);
}

void tst_DAlerteEphemere::dureeNulleCommenceLeFade()
{
    DAlerteEphemere const * const bulle = Affiche(nullptr, 0.0F);
    QVERIFY(!MinuterieFade(*bulle)->isActive());
    QVERIFY(OpacitesVoisines(bulle->windowOpacity(), 0.9));
    QSignalSpy debut(MinuterieAffichage(*bulle), &QTimer::timeout);
    QTRY_COMPARE(debut.count(), 1);
    QVERIFY(MinuterieFade(*bulle)->isActive());
}

void tst_DAlerteEphemere::fadeLineaire_data()
{
    QTest::addColumn<quint64>("attente");
    QTest::newRow("start") << quint64(0);
    QTest::newRow("a quarter later") << quint64(200);
    QTest::newRow("half-way") << quint64(400);
}

void tst_DAlerteEphemere::fadeLineaire()
{
    QFETCH(quint64, attente);
    auto const maintenant = &DonneTempsAbsoluEnMilliSecondes;
    QPointer<DAlerteEphemere> const bulle = Affiche();

    quint64 const avantDebut = maintenant();
    QVERIFY(QMetaObject::invokeMethod(bulle, "PriseFinAffichageOpaque"));
    quint64 const apresDebut = maintenant();
    QVERIFY(MinuterieFade(*bulle)->isActive());
    MinuterieFade(*bulle)->stop(); // the steps are taken by hand
    QTRY_VERIFY(maintenant() - apresDebut >= attente);
    quint64 const avantPas = maintenant();
    QVERIFY(QMetaObject::invokeMethod(bulle, "PriseAnimationFade"));
    quint64 const apresPas = maintenant();

    // The time that the step saw lies between two that are known.
    double const auPlus = DonneOpacite(avantPas - apresDebut).value_or(0.0);
    double const auMoins = DonneOpacite(apresPas - avantDebut).value_or(0.0);
    double const opacite = bulle->windowOpacity();
    QVERIFY(opacite <= auPlus + 1.0 / 255.0);
    QVERIFY(opacite >= auMoins - 1.0 / 255.0);
}

void tst_DAlerteEphemere::disparaitSeule()
{
    QPointer<DAlerteEphemere> const bulle = Affiche(nullptr, 0.0F);
    QTRY_VERIFY(!bulle || bulle->windowOpacity() < 0.8);
    QTRY_VERIFY(!bulle);
}

void tst_DAlerteEphemere::remplaceeAussitot_data()
{
    QTest::addColumn<float>("duree");
    QTest::addColumn<bool>("enFade");
    QTest::newRow("shown") << kLongtemps << false;
    QTest::newRow("fading") << 0.0F << true;
}

void tst_DAlerteEphemere::remplaceeAussitot()
{
    QFETCH(float, duree);
    QFETCH(bool, enFade);
    QWidget parent;
    QPointer<DAlerteEphemere> const premiere = Affiche(&parent, duree, u"premier"_s);
    if (enFade)
        QTRY_VERIFY(!premiere || premiere->windowOpacity() < 0.85);

    DAlerteEphemere const * const seconde = Affiche(nullptr, kLongtemps, u"second"_s);
    QVERIFY(premiere.isNull());
    QVERIFY(seconde); // and no other
    QVERIFY(seconde->isVisible());
    QCOMPARE(seconde->accessibleName(), u"second"_s);
    QVERIFY(OpacitesVoisines(seconde->windowOpacity(), 0.9));
}

void tst_DAlerteEphemere::remplaceePendantSaFermeture()
{
    class Relanceur : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent * evenement) override
        {
            if (evenement->type() == QEvent::Close)
                Affiche(nullptr, kLongtemps, u"second"_s);
            return evenement->type() == QEvent::Close;
        }
    } relanceur;
    QPointer<DAlerteEphemere> const premiere = Affiche(nullptr, 0.0F);
    premiere->installEventFilter(&relanceur);
    QTRY_VERIFY(premiere.isNull());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(Bulles().size(), 1);
    QCOMPARE(Bulles().first()->accessibleName(), u"second"_s);
    QVERIFY(Bulles().first()->isVisible());
}

void tst_DAlerteEphemere::autreBullePendantQuElleApparait()
{
    class Relanceur : public QObject
    {
    public:
        bool eventFilter(QObject * objet, QEvent * evenement) override
        {
            if (evenement->type() == QEvent::Show && qobject_cast<DAlerteEphemere *>(objet)) {
                qApp->removeEventFilter(this);
                Affiche(nullptr, 0.0F, u"interieure"_s);
            }
            return false;
        }
    } relanceur;
    qApp->installEventFilter(&relanceur);
    DAlerteInfo info(DAlerteInfo::kEphemere, UniChaine("exterieure"));
    info.dureeAffichage = 0.0F;
    DAlerteEphemere::Affiche(nullptr, info, {});
    QCOMPARE(Bulles().size(), 1);
    QCOMPARE(Bulles().first()->accessibleName(), u"exterieure"_s);
    QTRY_VERIFY(Bulles().isEmpty());
}

void tst_DAlerteEphemere::parentDetruit()
{
    auto parent = std::make_unique<QWidget>();
    QPointer<DAlerteEphemere> const bulle = Affiche(parent.get(), 0.0F);
    parent.reset();
    QVERIFY(bulle.isNull());
    QVERIFY(Affiche()); // which finds no bubble to delete
}

void tst_DAlerteEphemere::detruiteParUnAutre()
{
    delete Affiche();
    QVERIFY(Affiche());
}

QTEST_MAIN(tst_DAlerteEphemere)
#include "tst_DAlerteEphemere.moc"
