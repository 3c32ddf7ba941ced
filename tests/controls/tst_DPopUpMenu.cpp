// tests/controls/tst_DPopUpMenu.cpp
#include "controls/DPopUpMenu.h"

#include <QApplication>
#include <QLabel>
#include <QTemporaryFile>
#include <QVBoxLayout>
#include <QtTest>

namespace {

// The screens of this test, wherever it runs.
constexpr char kEcrans[] = R"({"screens": [
    {"name": "main", "x": 0, "y": 0, "width": 1600, "height": 1400,
     "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
    {"name": "small", "x": 1600, "y": 0, "width": 1024, "height": 800,
     "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

constexpr QSize kTaille(200, 100);
constexpr QRect kAncre(400, 300, 60, 20);
constexpr QPoint kAuDessus(400, 190); // 10 pixels above the anchor

class PopUpTemoin : public DPopUpMenu
{
public:
    using DPopUpMenu::DPopUpMenu;

    int mesDeplacements = 0;

protected:
    void moveEvent(QMoveEvent * evenement) override
    {
        ++mesDeplacements;
        DPopUpMenu::moveEvent(evenement);
    }
};

} // namespace

class tst_DPopUpMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void placeAuPremierAffichage_data();
    void placeAuPremierAffichage();
    void tailleDuContenu();
    void affichagesSuivants();
    void affichageApresAgrandissement();
    void placeDeLHote_data();
    void placeDeLHote();
    void placeDeLHoteRepetee();
    void placeDeLHotePuisAncre();
    void sansAncre();
    void deplaceVisible_data();
    void deplaceVisible();
    void agrandi_data();
    void agrandi();
};

void tst_DPopUpMenu::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DPopUpMenu::construction()
{
    QWidget parent;
    DPopUpMenu const popup(&parent);
    QCOMPARE(popup.windowFlags().toInt(), 0x200809);
    QCOMPARE(popup.parentWidget(), &parent);
    QVERIFY(popup.isWindow());
    QVERIFY(!popup.isVisible());
    DPopUpMenu const seul;
    QCOMPARE(seul.parentWidget(), nullptr);
}

void tst_DPopUpMenu::placeAuPremierAffichage_data()
{
    QTest::addColumn<QRect>("ancre");
    QTest::addColumn<QSize>("taille");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("above") << kAncre << kTaille << kAuDessus;
    QTest::newRow("exactly room above") << QRect(400, 110, 60, 20) << kTaille << QPoint(400, 0);
    QTest::newRow("one pixel short") << QRect(400, 109, 60, 20) << kTaille << QPoint(400, 139);
    QTest::newRow("at the top") << QRect(400, 0, 60, 20) << kTaille << QPoint(400, 30);
    QTest::newRow("top left corner") << QRect(0, 0, 60, 20) << kTaille << QPoint(0, 30);
    QTest::newRow("top right corner") << QRect(1580, 0, 20, 20) << kTaille << QPoint(1400, 30);
    QTest::newRow("right edge") << QRect(1580, 300, 20, 20) << kTaille << QPoint(1400, 190);
    QTest::newRow("bottom left corner") << QRect(0, 1380, 20, 20) << kTaille << QPoint(0, 1270);
    QTest::newRow("bottom right corner")
        << QRect(1580, 1380, 20, 20) << kTaille << QPoint(1400, 1270);
    QTest::newRow("as high as the screen, at the left")
        << QRect(0, 0, 60, 1400) << kTaille << QPoint(70, 0);
    QTest::newRow("as high as the screen, at the right")
        << QRect(1540, 0, 60, 1400) << kTaille << QPoint(1330, 0);
    QTest::newRow("larger than the screen") << QRect(0, 0, 1600, 1400) << kTaille << QPoint(0, 0);
    QTest::newRow("pop-up larger than the screen") << kAncre << QSize(3000, 2000) << QPoint(0, 0);
    QTest::newRow("second screen") << QRect(1700, 200, 60, 20) << kTaille << QPoint(1700, 90);
    QTest::newRow("second screen, at the top")
        << QRect(1700, 0, 60, 20) << kTaille << QPoint(1700, 30);
    QTest::newRow("second screen, bottom right corner")
        << QRect(2604, 780, 20, 20) << kTaille << QPoint(2424, 670);
    QTest::newRow("no rectangle") << QRect(400, 300, 0, 0) << kTaille << QPoint(400, 300);
    QTest::newRow("no rectangle, off the screen")
        << QRect(1450, 50, 0, 0) << kTaille << QPoint(1400, 50);
    QTest::newRow("a line") << QRect(400, 300, 0, 20) << kTaille << kAuDessus;
}

void tst_DPopUpMenu::placeAuPremierAffichage()
{
    QFETCH(QRect, ancre);
    QFETCH(QSize, taille);
    QFETCH(QPoint, place);
    PopUpTemoin popup;
    popup.resize(taille);
    popup.AfficheToi(ancre.topLeft(), ancre.size());
    QVERIFY(popup.isVisible());
    QCOMPARE(popup.pos(), place);
    QCOMPARE(popup.size(), taille);
    QCoreApplication::processEvents();
    QCOMPARE(popup.pos(), place);
    QVERIFY(popup.mesDeplacements < 5);
}

void tst_DPopUpMenu::tailleDuContenu()
{
    DPopUpMenu popup;
    auto * const disposition = new QVBoxLayout(&popup);
    auto * const contenu = new QWidget(&popup);
    contenu->setFixedSize(120, 33);
    disposition->setContentsMargins({});
    disposition->addWidget(contenu);
    popup.AfficheToi(kAncre.topLeft(), kAncre.size());
    QCOMPARE(popup.size(), QSize(120, 33));
    QCOMPARE(popup.pos(), QPoint(400, 300 - 10 - 33));
    popup.hide();
    contenu->setFixedSize(140, 43); // it still follows its contents
    popup.AfficheToi(kAncre.topLeft(), kAncre.size());
    QCOMPARE(popup.size(), QSize(140, 43));
    QCOMPARE(popup.pos(), QPoint(400, 300 - 10 - 43));
}

void tst_DPopUpMenu::affichagesSuivants()
{
    DPopUpMenu popup;
    popup.resize(kTaille);
    popup.AfficheToi(kAncre.topLeft(), kAncre.size());
    popup.AfficheToi(QPoint(700, 600), QSize(10, 10)); // still open
    QCOMPARE(popup.pos(), QPoint(700, 490));
    popup.close();
    popup.AfficheToi(QPoint(100, 800), QSize(10, 10));
    QVERIFY(popup.isVisible());
    QCOMPARE(popup.pos(), QPoint(100, 690));
}

// It is the pop-up itself that moved.
void tst_DPopUpMenu::affichageApresAgrandissement()
{
    DPopUpMenu popup;
    popup.resize(50, 50);
    popup.AfficheToi(kAncre.topLeft(), kAncre.size());
    popup.resize(kTaille);
    QCOMPARE(popup.pos(), kAuDessus);
    popup.AfficheToi(QPoint(700, 600), QSize(10, 10));
    QCOMPARE(popup.pos(), QPoint(700, 490));
}

void tst_DPopUpMenu::placeDeLHote_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<QPoint>("attendue");
    QTest::newRow("clear of all") << QPoint(700, 700) << QPoint(700, 700);
    QTest::newRow("at the origin") << QPoint(0, 0) << QPoint(0, 0);
    QTest::newRow("touching the anchor") << QPoint(460, 300) << QPoint(460, 300);
    QTest::newRow("one pixel over it") << QPoint(459, 300) << QPoint(459, 190);
    QTest::newRow("over it") << QPoint(380, 290) << QPoint(380, 190);
    QTest::newRow("off the screen") << QPoint(-30, 1390) << QPoint(0, 1300);
}

void tst_DPopUpMenu::placeDeLHote()
{
    QFETCH(QPoint, place);
    QFETCH(QPoint, attendue);
    DPopUpMenu popup;
    popup.resize(kTaille);
    popup.move(place);
    popup.AfficheToi(kAncre.topLeft(), kAncre.size());
    QCOMPARE(popup.pos(), attendue);
}

void tst_DPopUpMenu::placeDeLHoteRepetee()
{
    DPopUpMenu popup;
    popup.resize(kTaille);
    for (int i = 0; i < 3; ++i) {
        popup.move(600, 600); // at times where it is already
        popup.AfficheToi(kAncre.topLeft(), kAncre.size());
        QCOMPARE(popup.pos(), QPoint(600, 600));
        popup.close();
    }
}

void tst_DPopUpMenu::placeDeLHotePuisAncre()
{
    DPopUpMenu popup;
    popup.resize(kTaille);
    popup.AfficheToi(kAncre.topLeft(), kAncre.size());
    popup.hide();
    popup.move(700, 700);
    popup.AfficheToi(kAncre.topLeft(), kAncre.size());
    QCOMPARE(popup.pos(), QPoint(700, 700));
    popup.hide();
    popup.AfficheToi(kAncre.topLeft(), kAncre.size()); // not moved since
    QCOMPARE(popup.pos(), kAuDessus);
}

void tst_DPopUpMenu::sansAncre()
{
    DPopUpMenu popup;
    popup.resize(kTaille);
    popup.move(0, 0);
    popup.show();
    QCOMPARE(popup.pos(), QPoint(0, 0));
    popup.move(1450, 1350);
    QCOMPARE(popup.pos(), QPoint(1400, 1300));
}

void tst_DPopUpMenu::deplaceVisible_data()
{
    placeDeLHote_data();
    QTest::newRow("above the screen") << QPoint(400, -500) << QPoint(400, 0);
}

void tst_DPopUpMenu::deplaceVisible()
{
    QFETCH(QPoint, place);
    QFETCH(QPoint, attendue);
    PopUpTemoin popup;
    popup.resize(kTaille);
    popup.AfficheToi(kAncre.topLeft(), kAncre.size());
    popup.mesDeplacements = 0;
    popup.move(place);
    QCOMPARE(popup.pos(), attendue);
    QVERIFY(popup.mesDeplacements <= 2);
}

void tst_DPopUpMenu::agrandi_data()
{
    QTest::addColumn<QRect>("avant");
    QTest::addColumn<QSize>("taille");
    QTest::addColumn<QPoint>("attendue");
    QTest::newRow("has room") << QRect(700, 700, 50, 50) << kTaille << QPoint(700, 700);
    QTest::newRow("off the screen") << QRect(1500, 1350, 50, 50) << kTaille << QPoint(1400, 1300);
    QTest::newRow("over the anchor") << QRect(350, 300, 50, 50) << kTaille << QPoint(350, 190);
}

void tst_DPopUpMenu::agrandi()
{
    QFETCH(QRect, avant);
    QFETCH(QSize, taille);
    QFETCH(QPoint, attendue);
    DPopUpMenu popup;
    popup.setGeometry(avant);
    popup.AfficheToi(kAncre.topLeft(), kAncre.size());
    QCOMPARE(popup.geometry(), avant);
    popup.resize(taille);
    QCOMPARE(popup.pos(), attendue);
}

int main(int nombre, char ** arguments)
{
    QTemporaryFile ecrans;
    if (!ecrans.open() || ecrans.write(kEcrans) < 0 || !ecrans.flush())
        return 1;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + ecrans.fileName().toLocal8Bit());
    QApplication application(nombre, arguments);
    tst_DPopUpMenu test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "tst_DPopUpMenu.moc"
