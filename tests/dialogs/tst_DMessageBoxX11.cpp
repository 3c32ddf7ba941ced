// dialogs/tst_DMessageBoxX11.cpp
//
// Message boxes in front of a real window manager.
#include "dialogs/EssaisAlertes.h"

#include <QtTest>

using namespace DDialogue;
using namespace EssaisAlertes;
using namespace Qt::StringLiterals;

namespace {

// The frame, whose widths the manager chooses, is not known when a box is placed.
constexpr int kEcartDuCadre = 40;

DAlerteInfo Alerte(DAlerteInfo::eTypeDialogue type = DAlerteInfo::kQuestion)
{
    return {type, UniChaine("Message"), UniChaine("Note"), UniChaine("Titre")};
}

} // namespace

class tst_DMessageBoxX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { monBanc = std::make_unique<Banc>(); }
    void cleanup();

    void activeEtCentreeSurLeParent();
    void plusHautSurLEcranSansParent();
    void clavier();
    void parentMinimisay();
    void fenetreNativeDUnAutre();

private:
    std::unique_ptr<Banc> monBanc;
};

void tst_DMessageBoxX11::initTestCase()
{
    if (QGuiApplication::platformName() != "xcb"_L1)
        QSKIP("needs an X server");
}

void tst_DMessageBoxX11::cleanup()
{
    RetireRestes();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    monBanc.reset();
}

void tst_DMessageBoxX11::activeEtCentreeSurLeParent()
{
    QWidget parent;
    parent.setGeometry(300, 250, 600, 400);
    parent.show();
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    ReceveurNotant receveur;
    DAlerte(&parent, &receveur, Alerte());
    QPointer<DMessageBox> const boite = BoiteDevant();
    QVERIFY(boite);
    QTRY_VERIFY(boite->isActiveWindow());
    QPoint const ecart = boite->geometry().center() - parent.geometry().center();
    QVERIFY2(ecart.manhattanLength() <= kEcartDuCadre,
             qPrintable(u"%1, %2"_s.arg(ecart.x()).arg(ecart.y())));
    Tape(*boite, Qt::Key_Return);
    QTRY_VERIFY(!boite);
    QCOMPARE(DonneReponses(receveur), QList<int>{kBoutonOk});
}

// Without a parent a box stands somewhat above the middle, by 3/14 of the height of the screen.
void tst_DMessageBoxX11::plusHautSurLEcranSansParent()
{
    QPoint ecart;
    int hauteur = 0;
    Repondant const utilisateur([&](DMessageBox & boite) {
        QRect const ecran = boite.screen()->availableGeometry();
        hauteur = ecran.height();
        ecart = boite.geometry().center() - ecran.center();
        Clique(boite.button(QMessageBox::Ok));
    });
    QCOMPARE(DAlerte(nullptr, Alerte()), kBoutonOk);
    ecart.ry() += hauteur * 3 / 14;
    QVERIFY2(ecart.manhattanLength() <= kEcartDuCadre,
             qPrintable(u"%1, %2"_s.arg(ecart.x()).arg(ecart.y())));
}

// Escape and Return, through the window that has the focus of the server.
void tst_DMessageBoxX11::clavier()
{
    for (Qt::Key const touche : {Qt::Key_Escape, Qt::Key_Return}) {
        ReceveurNotant receveur;
        DAlerte(nullptr, &receveur, Alerte(), kBoutonOui | kBoutonNon | kBoutonAnnuler, kBoutonNon,
                kBoutonAnnuler);
        QPointer<DMessageBox> const boite = BoiteDevant();
        QVERIFY(boite);
        QTRY_COMPARE(QGuiApplication::focusWindow(), boite->windowHandle());
        QTest::keyClick(QGuiApplication::focusWindow(), touche);
        QTRY_VERIFY(!boite);
        QCOMPARE(DonneReponses(receveur),
                 QList<int>{touche == Qt::Key_Escape ? int(kBoutonAnnuler) : int(kBoutonNon)});
    }
}

// The box is not minimised with its parent: somebody must be able to answer it.
void tst_DMessageBoxX11::parentMinimisay()
{
    QWidget parent;
    parent.setGeometry(300, 250, 600, 400);
    parent.show();
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    parent.showMinimized();
    ReceveurNotant receveur;
    DAlerte(&parent, &receveur, Alerte());
    QPointer<DMessageBox> const boite = BoiteDevant();
    QVERIFY(boite);
    QVERIFY(QTest::qWaitForWindowExposed(boite));
    QVERIFY(!boite->isMinimized());
    Clique(boite->button(QMessageBox::Ok));
    QTRY_VERIFY(!boite);
    QCOMPARE(DonneReponses(receveur), QList<int>{kBoutonOk});
}

// A window of this program stands for one of another: all that counts is its handle.
void tst_DMessageBoxX11::fenetreNativeDUnAutre()
{
    QWindow fenetre;
    fenetre.setGeometry(300, 250, 600, 400);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    bool estDevant = false;
    Repondant const utilisateur([&estDevant](DMessageBox & boite) {
        estDevant = boite.windowFlags().testFlag(Qt::WindowStaysOnTopHint);
        Clique(boite.button(QMessageBox::Ok));
    });
    QCOMPARE(DAlerteCentrageNatif(reinterpret_cast<HWND>(fenetre.winId()), Alerte()), kBoutonOk);
    QVERIFY(estDevant);
    QVERIFY(fenetre.isVisible());
}

QTEST_MAIN(tst_DMessageBoxX11)
#include "tst_DMessageBoxX11.moc"
