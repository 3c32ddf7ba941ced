#include "lists/Pastille.h"

#include "lists/EssaisPastille.h"
#include "noyau/Traductions.h"

#include <QAction>
#include <QPointer>
#include <QtTest>

#include <memory>

using namespace EssaisPastille;
using namespace Qt::StringLiterals;

class tst_Pastille : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void valeursInitiales();
    void taille_data();
    void taille();
    void tailleSuitLaPolice();
    void rectangleDeLaCroix_data();
    void rectangleDeLaCroix();
    void fond();
    void texteNoir();
    void image();
    void anneauDuFocus();
    void titre_data();
    void titre();
    void action();
    void actionEchappeLEsperluette();
    void actionApresLaMortDeLAction();
    void supprime();
    void supprimePendantLeSignal();
    void detruitePendantLeSignal();
};

void tst_Pastille::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_Pastille::valeursInitiales()
{
    Pastille pastille(u"mot"_s, u"cle"_s);
    QCOMPARE(pastille.DonneData(), QVariant(u"cle"_s));
    QVERIFY(pastille.EstUneAction());
    QVERIFY(pastille.hasMouseTracking());
    QCOMPARE(pastille.focusPolicy(), Qt::TabFocus);
    QCOMPARE(pastille.parentWidget(), nullptr);
    QCOMPARE(pastille.DonneTailleMin(), pastille.sizeHint());
    QCOMPARE(pastille.DonneTailleMax(), pastille.sizeHint());

    QVERIFY(!Pastille(QString(), QVariant()).DonneData().isValid());
}

void tst_Pastille::taille_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("a word") << u"mot"_s;
    QTest::newRow("a sentence") << u"Des mots qui contiennent un accent"_s;
    QTest::newRow("no title") << QString();
}

void tst_Pastille::taille()
{
    QFETCH(QString, texte);
    Pastille const pastille(texte, 1);
    QSize const mesure = pastille.fontMetrics().boundingRect(texte).size();
    QCOMPARE(pastille.sizeHint(), QSize(mesure.width() + 28, std::max(mesure.height(), 8)));
}

void tst_Pastille::tailleSuitLaPolice()
{
    Pastille pastille(u"mot"_s, 1);
    QSize const avant = pastille.sizeHint();
    QFont police = pastille.font();
    police.setPixelSize(60);
    pastille.setFont(police);
    QSize const mesure = pastille.fontMetrics().boundingRect(u"mot"_s).size();
    QCOMPARE(pastille.sizeHint(), QSize(mesure.width() + 28, mesure.height()));
    QVERIFY(pastille.sizeHint() != avant);

    police.setPixelSize(2);
    pastille.setFont(police);
    QCOMPARE(pastille.sizeHint().height(), 8); // that of the cross
}

void tst_Pastille::rectangleDeLaCroix_data()
{
    QTest::addColumn<QSize>("taille");
    QTest::addColumn<QRect>("rectangle");
    QTest::newRow("even rest") << QSize(100, 30) << QRect(86, 11, 8, 8);
    QTest::newRow("odd rest") << QSize(61, 17) << QRect(47, 4, 8, 8);
    QTest::newRow("as high as the cross") << QSize(28, 8) << QRect(14, 0, 8, 8);
}

void tst_Pastille::rectangleDeLaCroix()
{
    QFETCH(QSize, taille);
    Pastille pastille(u"mot"_s, 1);
    pastille.resize(taille);
    QTEST(pastille.DonneRectBoutonSupprimer(), "rectangle");
}

void tst_Pastille::fond()
{
    Hote hote{QString()};
    QImage const image = Peins(*hote.pastille);
    QRgb const gris = qRgb(0xBE, 0xBE, 0xBE);
    for (QPoint const point : {QPoint(50, 15), QPoint(3, 0), QPoint(0, 3), QPoint(99, 15),
                               QPoint(50, 29), QPoint(96, 29)})
        QCOMPARE(image.pixel(point), gris);
    // Rounded, with soft edges.
    for (QPoint const coin : {QPoint(0, 0), QPoint(99, 0), QPoint(0, 29), QPoint(99, 29)}) {
        QVERIFY(qAlpha(image.pixel(coin)) < 220);
        QVERIFY(qAlpha(image.pixel(coin)) > 0);
    }
}

void tst_Pastille::texteNoir()
{
    Hote hote(u"MMMM"_s);
    QFont police = hote.fenetre.font();
    police.setPixelSize(20);
    hote.pastille->setFont(police);
    hote.pastille->resize(hote.pastille->sizeHint().width() + 100, 40);
    QImage const image = Peins(*hote.pastille);
    QRect noirs;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).value() < 60)
                noirs |= QRect(x, y, 1, 1);
        }
    }
    QVERIFY(!noirs.isEmpty());
    // Centred between the left margin and what the cross needs.
    QRect const zone(5, 0, image.width() - 28, image.height());
    QVERIFY(zone.contains(noirs));
    QVERIFY(qAbs(noirs.center().x() - zone.center().x()) <= 3);
    QVERIFY(qAbs(noirs.center().y() - zone.center().y()) <= 6);
}

void tst_Pastille::image()
{
    Hote hote{QString()};
    hote.Montre();
    QRect const croix = hote.pastille->DonneRectBoutonSupprimer();
    QImage image = Peins(*hote.pastille);
    QCOMPARE(image.pixel(croix.center()), qRgb(0, 0, 255));
    QCOMPARE(image.pixel(croix.topLeft()), qRgb(0, 0, 255));
    QCOMPARE(image.pixel(croix.bottomRight()), qRgb(0, 0, 255));
    QCOMPARE(image.pixel(croix.left() - 1, croix.center().y()), qRgb(0xBE, 0xBE, 0xBE));
    QCOMPARE(image.pixel(croix.right() + 1, croix.center().y()), qRgb(0xBE, 0xBE, 0xBE));

    QTest::mouseMove(hote.pastille, croix.center());
    image = Peins(*hote.pastille);
    QCOMPARE(image.pixel(croix.center()), qRgb(255, 0, 0));
}

void tst_Pastille::anneauDuFocus()
{
    Hote hote{QString()};
    auto * const autre = new QWidget(&hote.fenetre);
    autre->setFocusPolicy(Qt::StrongFocus);
    hote.Montre();
    QVERIFY(QTest::qWaitForWindowActive(&hote.fenetre));
    autre->setFocus();
    QImage const sans = Peins(*hote.pastille);
    hote.pastille->setFocus(Qt::TabFocusReason);
    QVERIFY(hote.pastille->hasFocus());
    QImage const avec = Peins(*hote.pastille);
    QCOMPARE(avec.pixel(50, 0), qRgb(0, 0, 0));
    QCOMPARE(avec.pixel(50, 29), qRgb(0, 0, 0));
    QCOMPARE(avec.pixel(50, 15), sans.pixel(50, 15));
    autre->setFocus();
    QCOMPARE(Peins(*hote.pastille), sans);
}

void tst_Pastille::titre_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("titre");
    QTest::newRow("French") << int(kLangueFrancais) << u"mot"_s << u"Enlever «mot»"_s;
    QTest::newRow("English") << int(kLangueAnglais) << u"mot"_s << u"Remove “mot”"_s;
    QTest::newRow("a title that looks like a place")
        << int(kLangueFrancais) << u"{1} %1"_s << u"Enlever «{1} %1»"_s;
    QTest::newRow("no title") << int(kLangueFrancais) << QString() << u"Enlever «»"_s;
}

void tst_Pastille::titre()
{
    QFETCH(int, langue);
    QFETCH(QString, texte);
    Traductions::MetsLanguePourApplicationCourante(eLangue(langue));
    auto const retour =
        qScopeGuard([] { Traductions::MetsLanguePourApplicationCourante(kLangueFrancais); });
    QTEST(Pastille(texte, 1).DonneTitre(), "titre");
}

void tst_Pastille::action()
{
    Pastille pastille(u"mot"_s, 7);
    QSignalSpy const espion(&pastille, &Pastille::PastilleASupprimer);
    std::unique_ptr<QAction> const action(pastille.DonneQAction());
    std::unique_ptr<QAction> const autre(pastille.DonneQAction());
    QVERIFY(action != autre);
    QCOMPARE(action->parent(), nullptr);
    QCOMPARE(action->text(), pastille.DonneTitre());
    action->trigger();
    QCOMPARE(espion.count(), 0); // only once the menu has closed
    QTRY_COMPARE(espion.count(), 1);
    QCOMPARE(espion.at(0).at(0), QVariant(7));
}

void tst_Pastille::actionEchappeLEsperluette()
{
    Pastille pastille(u"R&D"_s, 7);
    std::unique_ptr<QAction> const action(pastille.DonneQAction());
    QCOMPARE(action->text(), u"Enlever «R&&D»"_s);
    QCOMPARE(pastille.DonneTitre(), u"Enlever «R&D»"_s);
}

void tst_Pastille::actionApresLaMortDeLAction()
{
    Pastille pastille(u"mot"_s, 7);
    QSignalSpy const espion(&pastille, &Pastille::PastilleASupprimer);
    std::unique_ptr<QAction> action(pastille.DonneQAction());
    action->trigger();
    action.reset(); // the menu is built anew
    QTRY_COMPARE(espion.count(), 1);
}

void tst_Pastille::supprime()
{
    QPointer<Pastille> const pastille = new Pastille(u"mot"_s, 7);
    pastille->Supprime();
    QVERIFY(!pastille);
}

void tst_Pastille::supprimePendantLeSignal()
{
    Hote hote;
    QPointer<Pastille> const pastille = hote.pastille;
    hote.Montre();
    int fois = 0;
    connect(pastille, &Pastille::PastilleASupprimer, this, [&] {
        ++fois;
        pastille->Supprime();
    });
    QTest::mouseClick(pastille, Qt::LeftButton, {}, hote.Croix());
    QCOMPARE(fois, 1);
    QVERIFY(!pastille || pastille->isHidden());
    EnvoieSuppressions();
    QVERIFY(!pastille);
}

void tst_Pastille::detruitePendantLeSignal()
{
    auto * const pastille = new Pastille(u"mot"_s, 7);
    bool detruite = false;
    connect(pastille, &Pastille::PastilleASupprimer, this, [&] {
        delete pastille;
        detruite = true;
    });
    QMetaObject::invokeMethod(pastille, "PriseExecuteAction");
    QVERIFY(detruite);
}

QTEST_MAIN(tst_Pastille)
#include "tst_Pastille.moc"
