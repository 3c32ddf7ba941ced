// tests/galerie/tst_PageTactile.cpp
#include "PageTactile.h"

#include "ImageZoomable.h"
#include "TraceSignaux.h"

#include "noyau/Traductions.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_PageTactile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void demonstration();
    void effacer();
    void toucher();
    void toucherDeuxFois();
    void glisser_data();
    void glisser();
    void uneSeulePrise();
    void passationDuDoigt();
    void stylet();
    void pincer_data();
    void pincer();
    void limitesDuZoom();
    void airesNommees();

private:
    void Montre();
    void Appuie(QString const & bouton);
    void Choisis(QString const & cible);
    QAbstractScrollArea & PreteAire(QString const & nom) const;
    QStringList DonneTrace() const;

    int monIntervalle = 0; // ms
    std::unique_ptr<PageTactile> maPage;
};

void tst_PageTactile::init()
{
    // Two taps of a slow computer are a double tap all the same.
    monIntervalle = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(60000);
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    maPage = std::make_unique<PageTactile>();
    maPage->resize(900, 760);
}

void tst_PageTactile::cleanup()
{
    maPage.reset();
    QApplication::setDoubleClickInterval(monIntervalle);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// Shows the page, after its demonstration and with an empty trace.
void tst_PageTactile::Montre()
{
    maPage->show();
    QVERIFY(QTest::qWaitForWindowActive(maPage.get())); // which brings the focus to an area
    QTRY_VERIFY(!DonneTrace().isEmpty());
    Appuie(u"effacer"_s);
}

void tst_PageTactile::Appuie(QString const & bouton)
{
    QTest::keyClick(maPage->findChild<QPushButton *>(bouton), Qt::Key_Space);
}

void tst_PageTactile::Choisis(QString const & cible)
{
    auto & choix = *maPage->findChild<QComboBox *>(u"cible"_s);
    choix.setCurrentText(cible);
    QCOMPARE(choix.currentText(), cible);
}

QAbstractScrollArea & tst_PageTactile::PreteAire(QString const & nom) const
{
    QAbstractScrollArea * aire = nullptr;
    for (auto * const candidate : maPage->findChildren<QAbstractScrollArea *>())
        if (candidate->accessibleName() == nom)
            aire = candidate;
    return *aire;
}

QStringList tst_PageTactile::DonneTrace() const
{
    return maPage->findChild<TraceSignaux *>()->toPlainText().split(u'\n', Qt::SkipEmptyParts);
}

void tst_PageTactile::demonstration()
{
    QVERIFY(DonneTrace().isEmpty());

    QCoreApplication::processEvents();

    // Hidden, as in a picture.
    QStringList trace{u"— Stylet —"_s, u"Liste · MouseButtonPress"_s, u"Liste · MouseMove"_s,
                      u"Liste · MouseButtonRelease"_s, u"— Écarter —"_s};
    trace += QStringList(4, u"DZoomTactile::SignalZoomTactile(1.1)"_s);
    trace += {u"— Glisser —"_s,
              u"Liste · tactile = true"_s,
              u"Liste · QScroller::Pressed"_s,
              u"Liste · QScroller::Dragging"_s,
              u"Liste · QScroller::Inactive"_s,
              u"Liste · tactile = false"_s,
              u"Liste · HoverLeave"_s};
    QCOMPARE(DonneTrace(), trace);
    QVERIFY(PreteAire(u"Liste"_s).verticalScrollBar()->value() > 0);
}

void tst_PageTactile::effacer()
{
    QCoreApplication::processEvents();
    QVERIFY(!DonneTrace().isEmpty());

    Appuie(u"effacer"_s);

    QVERIFY(DonneTrace().isEmpty());
}

void tst_PageTactile::toucher()
{
    Montre();

    Appuie(u"toucher"_s);

    QTRY_VERIFY(DonneTrace().contains(u"Liste · tactile = false"_s));
    QStringList const trace = DonneTrace();
    QCOMPARE(trace.first(), u"— Toucher —"_s);
    QCOMPARE(trace.count(u"Liste · MouseButtonPress"_s), 1);
    QCOMPARE(trace.count(u"Liste · MouseButtonRelease"_s), 1);
    QCOMPARE(trace.count(u"Liste · MouseButtonDblClick"_s), 0);
    QCOMPARE(trace.count(u"Liste · tactile = true"_s), 1);
    QVERIFY(maPage->findChild<QListWidget *>(u"listeTactile"_s)->currentItem());
}

void tst_PageTactile::toucherDeuxFois()
{
    Montre();

    Appuie(u"doubleToucher"_s);

    QTRY_COMPARE(DonneTrace().count(u"Liste · MouseButtonRelease"_s), 2);
    QCOMPARE(DonneTrace().count(u"Liste · MouseButtonPress"_s), 1);
    QCOMPARE(DonneTrace().count(u"Liste · MouseButtonDblClick"_s), 1);
}

void tst_PageTactile::glisser_data()
{
    QTest::addColumn<QString>("cible");
    QTest::newRow("item view") << u"Liste"_s;
    QTest::newRow("inner area, which has the focus") << u"Aire intérieure"_s;
    QTest::newRow("outer area") << u"Aire extérieure"_s;
}

void tst_PageTactile::glisser()
{
    QFETCH(QString, cible);
    Montre();
    Choisis(cible);
    auto & aire = PreteAire(cible);
    aire.setFocus();
    QVERIFY(aire.hasFocus());

    Appuie(u"glisser"_s);

    QTRY_VERIFY_WITH_TIMEOUT(DonneTrace().contains(cible + u" · QScroller::Inactive"_s), 20000);
    QStringList const trace = DonneTrace();
    QVERIFY(trace.indexOf(cible + u" · QScroller::Pressed"_s) <
            trace.indexOf(cible + u" · QScroller::Dragging"_s));
    QCOMPARE(trace.contains(cible + u" · MouseButtonPress"_s), false); // no tap
    QVERIFY(aire.verticalScrollBar()->value() > 0);
    for (QString const & autre : {u"Aire extérieure"_s, u"Aire intérieure"_s}) {
        if (autre == cible)
            continue;
        QVERIFY(trace.filter(autre + u" · QScroller::"_s).isEmpty());
        QCOMPARE(PreteAire(autre).verticalScrollBar()->value(), 0);
    }
}

void tst_PageTactile::uneSeulePrise()
{
    Montre();
    Appuie(u"glisser"_s);

    Appuie(u"toucher"_s);
    Appuie(u"glisser"_s);

    QTRY_VERIFY_WITH_TIMEOUT(DonneTrace().contains(u"Liste · tactile = false"_s), 20000);
    QCOMPARE(DonneTrace().count(u"Liste · QScroller::Pressed"_s), 1);
    QCOMPARE(DonneTrace().count(u"Liste · MouseButtonPress"_s), 0);
}

void tst_PageTactile::passationDuDoigt()
{
    QString const exterieure = u"Aire extérieure"_s;
    QString const interieure = u"Aire intérieure"_s;
    Montre();
    PreteAire(u"Liste"_s).setFocus();
    Appuie(u"effacer"_s);

    PreteAire(interieure).setFocus();
    PreteAire(exterieure).setFocus();

    QCOMPARE(DonneTrace(), (QStringList{interieure + u" · FocusIn"_s, interieure + u" · FocusOut"_s,
                                        exterieure + u" · FocusIn"_s}));

    // The scroller that came back is the outer area's, whoever gave it back.
    Choisis(exterieure);
    Appuie(u"effacer"_s);
    Appuie(u"glisser"_s);

    QTRY_VERIFY_WITH_TIMEOUT(DonneTrace().contains(exterieure + u" · QScroller::Inactive"_s),
                             20000);
    QCOMPARE(DonneTrace().count(exterieure + u" · QScroller::Pressed"_s), 1);
    QCOMPARE(DonneTrace().filter(interieure).size(), 0);
}

void tst_PageTactile::stylet()
{
    Montre();

    Appuie(u"stylet"_s);

    QCOMPARE(DonneTrace(), (QStringList{u"— Stylet —"_s, u"Liste · MouseButtonPress"_s,
                                        u"Liste · MouseMove"_s, u"Liste · MouseButtonRelease"_s}));
}

void tst_PageTactile::pincer_data()
{
    QTest::addColumn<QString>("bouton");
    QTest::addColumn<bool>("agrandit");
    QTest::newRow("fingers part") << u"ecarter"_s << true;
    QTest::newRow("fingers close") << u"rapprocher"_s << false;
}

void tst_PageTactile::pincer()
{
    QFETCH(QString, bouton);
    QFETCH(bool, agrandit);
    auto const & image = *maPage->findChild<ImageZoomable *>();
    auto const & facteur = *maPage->findChild<QLabel *>(u"facteur"_s);
    double const avant = image.DonneFacteur();
    QCOMPARE(avant, 1.0);
    QString const texte = facteur.text();
    QVERIFY(texte.contains(u"100"));

    Appuie(bouton);

    QCOMPARE(image.DonneFacteur() > avant, agrandit);
    QVERIFY(image.DonneFacteur() != avant);
    QVERIFY(facteur.text() != texte);
    QCOMPARE(DonneTrace().size(), 5); // the title and four steps
}

void tst_PageTactile::limitesDuZoom()
{
    ImageZoomable image{QPixmap(10, 10)};

    image.Zoome(100);
    QCOMPARE(image.DonneFacteur(), 4.0);

    image.Zoome(0.001);
    QCOMPARE(image.DonneFacteur(), 0.25);
}

void tst_PageTactile::airesNommees()
{
    for (QAbstractScrollArea const * const aire : maPage->findChildren<QAbstractScrollArea *>())
        if (aire->focusPolicy() & Qt::TabFocus && !qobject_cast<QHeaderView const *>(aire))
            QVERIFY2(!aire->accessibleName().isEmpty(), aire->metaObject()->className());
}

QTEST_MAIN(tst_PageTactile)
#include "tst_PageTactile.moc"
