#include "lists/ListePastille.h"

#include "controls/DBoutonSansFleche.h"
#include "lists/Pastille.h"

#include <QLineEdit>
#include <QMenu>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_ListePastille : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void chevronCarre();
    void chevronApresUneHauteurNulle();
    void hauteur();
    void largeur();
    void trouve();
    void retire();
    void vide();
    void videPendantLeSignal();
    void rafraichitAussitot();
    void rafraichitEnUneFois();
    void fleches();
    void flechesAuxBouts();
    void flechesSousLeChevron();
    void tabulation();
    void focusApresRetrait_data();
    void focusApresRetrait();
    void focusVersCelleQuiSort();
    void sansFocusRienNeBouge();
};

namespace {

DBoutonSansFleche * Chevron(ListePastille const & liste)
{
    return liste.findChild<DBoutonSansFleche *>();
}

Pastille * Ajoute(ListePastille & liste, QVariant const & cle, QString const & titre = u"mot"_s)
{
    auto * const pastille = new Pastille(titre, cle);
    liste.AjoutePastille(pastille);
    return pastille;
}

// A list with pills of the keys 0, 1, ... in a window with the focus.
struct Hote
{
    explicit Hote(int nombre, int largeur = 700)
        : liste(new ListePastille(&fenetre))
        , suite(new QLineEdit(&fenetre))
    {
        fenetre.resize(760, 200);
        liste->setGeometry(0, 0, largeur, 40);
        suite->setGeometry(0, 100, 100, 30);
        for (int i = 0; i < nombre; ++i)
            pastilles << Ajoute(*liste, i);
    }

    bool Montre()
    {
        fenetre.show();
        fenetre.activateWindow();
        bool const active = QTest::qWaitForWindowActive(&fenetre);
        QCoreApplication::processEvents();
        return active;
    }

    // So that `visibles` pills have room, and the chevron.
    void Retrecis(int visibles)
    {
        int const largeur = pastilles.first()->sizeHint().width() + liste->layout()->spacing();
        liste->resize(visibles * largeur + liste->height() + 2, liste->height());
        QCoreApplication::processEvents();
    }

    QWidget fenetre;
    ListePastille * liste;
    QLineEdit * suite;
    QList<Pastille *> pastilles;
};

} // namespace

void tst_ListePastille::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ListePastille::construction()
{
    QWidget parent;
    ListePastille const enfant(&parent);
    QCOMPARE(enfant.parentWidget(), &parent);
    QCOMPARE(Chevron(enfant)->maximumSize(), QSize(enfant.height(), enfant.height()));
    ListePastille const seule;
    QCOMPARE(seule.parentWidget(), nullptr);
    QCOMPARE(Chevron(seule)->maximumSize(), QSize(seule.height(), seule.height()));
    QCOMPARE(seule.sizeHint(), QSize(0, 0));
}

void tst_ListePastille::chevronCarre()
{
    ListePastille liste;
    for (int const hauteur : {17, 40, 3}) {
        liste.resize(200, hauteur);
        QResizeEvent evenement(liste.size(), QSize());
        QCoreApplication::sendEvent(&liste, &evenement);
        QCOMPARE(Chevron(liste)->maximumSize(), QSize(hauteur, hauteur));
    }
}

void tst_ListePastille::chevronApresUneHauteurNulle()
{
    Hote hote(10);
    hote.liste->resize(100, 0);
    QVERIFY(hote.Montre());
    QCOMPARE(Chevron(*hote.liste)->maximumSize(), QSize(0, 0));
    hote.liste->resize(100, 20);
    QTRY_VERIFY(Chevron(*hote.liste)->width() > 0);
    QCOMPARE(Chevron(*hote.liste)->maximumSize(), QSize(20, 20));
    QVERIFY(hote.liste->rect().contains(Chevron(*hote.liste)->geometry()));
}

void tst_ListePastille::hauteur()
{
    ListePastille liste;
    Pastille * const petite = Ajoute(liste, 1);
    QCOMPARE(liste.sizeHint().height(), petite->sizeHint().height());
    Pastille * const grande = Ajoute(liste, 2);
    QFont police = grande->font();
    police.setPixelSize(50);
    grande->setFont(police);
    QVERIFY(grande->sizeHint().height() > petite->sizeHint().height());
    QCOMPARE(liste.sizeHint().height(), grande->sizeHint().height());
    liste.RetirePastille(grande, nullptr);
    QCOMPARE(liste.sizeHint().height(), petite->sizeHint().height());
    liste.RetirePastille(petite, nullptr);
    QCOMPARE(liste.sizeHint().height(), 0);
}

void tst_ListePastille::largeur()
{
    ListePastille liste;
    liste.setSpacing(10);
    int somme = 0;
    for (int i = 0; i < 3; ++i)
        somme += Ajoute(liste, i, QString(i + 1, u'm'))->sizeHint().width();
    QCOMPARE(liste.sizeHint().width(), somme); // without the spacing
}

void tst_ListePastille::trouve()
{
    ListePastille liste;
    QCOMPARE(liste.TrouvePastille(1), nullptr);
    Pastille * const un = Ajoute(liste, 1);
    Ajoute(liste, 1);
    Pastille * const texte = Ajoute(liste, u"1x"_s);
    Pastille * const rien = Ajoute(liste, QVariant());
    QCOMPARE(liste.TrouvePastille(1), un); // the first
    QCOMPARE(liste.TrouvePastille(u"1x"_s), texte);
    QCOMPARE(liste.TrouvePastille(QVariant()), rien);
    QCOMPARE(liste.TrouvePastille(2), nullptr);
}

void tst_ListePastille::retire()
{
    ListePastille liste;
    QPointer<Pastille> const premiere = Ajoute(liste, 1);
    Pastille * const seconde = Ajoute(liste, 2);
    liste.RetirePastille(premiere, nullptr);
    QVERIFY(!premiere);
    QCOMPARE(liste.PreteListeWidgets(), std::list<QWidget *>{seconde});
}

void tst_ListePastille::vide()
{
    ListePastille liste;
    QPointer<Pastille> const pastille = Ajoute(liste, 1);
    liste.addSpacer();
    QPointer<Pastille> const autre = Ajoute(liste, 2);
    liste.Vide();
    QVERIFY(!pastille);
    QVERIFY(!autre);
    QCOMPARE(liste.layout()->count(), 0);
    liste.Vide();
    Ajoute(liste, 3);
    QCOMPARE(liste.layout()->count(), 1);
}

void tst_ListePastille::videPendantLeSignal()
{
    ListePastille liste;
    QPointer<Pastille> const pastille = Ajoute(liste, 1);
    QPointer<Pastille> const autre = Ajoute(liste, 2);
    connect(pastille, &Pastille::PastilleASupprimer, &liste, &ListePastille::Vide);
    QTest::keyClick(pastille, Qt::Key_Delete);
    QVERIFY(!autre);
    QCOMPARE(liste.layout()->count(), 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!pastille);
}

void tst_ListePastille::rafraichitAussitot()
{
    ListePastille liste;
    for (int i = 0; i < 32; ++i) {
        Ajoute(liste, i);
        liste.RafraichisMenu();
        QCOMPARE(Chevron(liste)->menu()->actions().size(), i + 1); // none is laid out yet
    }
}

void tst_ListePastille::rafraichitEnUneFois()
{
    ListePastille liste;
    for (int i = 0; i < 33; ++i)
        Ajoute(liste, i);
    liste.RafraichisMenu();
    liste.RafraichisMenu();
    QCOMPARE(Chevron(liste)->menu()->actions().size(), 0);
    QTRY_COMPARE(Chevron(liste)->menu()->actions().size(), 33);
    // The next time as well.
    Ajoute(liste, 33);
    liste.RafraichisMenu();
    QTRY_COMPARE(Chevron(liste)->menu()->actions().size(), 34);
}

void tst_ListePastille::fleches()
{
    Hote hote(3);
    QVERIFY(hote.Montre());
    hote.pastilles[0]->setFocus();
    QTest::keyClick(hote.pastilles[0], Qt::Key_Right);
    QVERIFY(hote.pastilles[1]->hasFocus());
    QTest::keyClick(hote.pastilles[1], Qt::Key_Right);
    QVERIFY(hote.pastilles[2]->hasFocus());
    QTest::keyClick(hote.pastilles[2], Qt::Key_Left);
    QVERIFY(hote.pastilles[1]->hasFocus());
    QTest::keyClick(hote.pastilles[1], Qt::Key_Right, Qt::ControlModifier);
    QVERIFY(hote.pastilles[1]->hasFocus());
}

void tst_ListePastille::flechesAuxBouts()
{
    Hote hote(2);
    QVERIFY(hote.Montre());
    hote.pastilles[0]->setFocus();
    QTest::keyClick(hote.pastilles[0], Qt::Key_Left);
    QVERIFY(hote.pastilles[0]->hasFocus());
    hote.pastilles[1]->setFocus();
    QTest::keyClick(hote.pastilles[1], Qt::Key_Right);
    QVERIFY(hote.pastilles[1]->hasFocus());
}

void tst_ListePastille::flechesSousLeChevron()
{
    Hote hote(6);
    QVERIFY(hote.Montre());
    hote.Retrecis(2);
    QVERIFY(hote.liste->WidgetEstVisible(1));
    QVERIFY(!hote.liste->WidgetEstVisible(2));
    hote.pastilles[1]->setFocus();
    QTest::keyClick(hote.pastilles[1], Qt::Key_Right);
    QVERIFY(hote.pastilles[1]->hasFocus()); // the next one is not seen
}

void tst_ListePastille::tabulation()
{
    Hote hote(4);
    QVERIFY(hote.Montre());
    hote.Retrecis(2);
    // More of them while the last ones are under the chevron.
    for (int i = 4; i < 6; ++i)
        hote.pastilles << Ajoute(*hote.liste, i);
    QCoreApplication::processEvents();
    hote.suite->setFocus();
    auto const suivants = [&](int combien, Qt::Key touche) {
        QList<QWidget *> widgets;
        for (int i = 0; i < combien; ++i) {
            QTest::keyClick(QApplication::focusWidget(), touche);
            widgets << QApplication::focusWidget();
        }
        return widgets;
    };
    QWidget * const chevron = Chevron(*hote.liste);
    QCOMPARE(suivants(4, Qt::Key_Tab),
             QList<QWidget *>({hote.pastilles[0], hote.pastilles[1], chevron, hote.suite}));
    QCOMPARE(suivants(2, Qt::Key_Backtab), QList<QWidget *>({chevron, hote.pastilles[1]}));

    // All of them, in their order, once there is room.
    hote.liste->resize(750, hote.liste->height());
    QCoreApplication::processEvents();
    hote.suite->setFocus();
    QList<QWidget *> attendus;
    for (Pastille * const pastille : hote.pastilles)
        attendus << pastille;
    QCOMPARE(suivants(7, Qt::Key_Tab), attendus << hote.suite);
}

void tst_ListePastille::focusApresRetrait_data()
{
    QTest::addColumn<int>("nombre");
    QTest::addColumn<int>("retiree");
    QTest::addColumn<int>("cible"); // -1 for the widget that follows
    QTest::newRow("the next one") << 3 << 1 << 2;
    QTest::newRow("the next one of the first") << 3 << 0 << 1;
    QTest::newRow("the one before the last") << 3 << 2 << 1;
    QTest::newRow("none is left") << 1 << 0 << -1;
}

void tst_ListePastille::focusApresRetrait()
{
    QFETCH(int, nombre);
    QFETCH(int, retiree);
    QFETCH(int, cible);
    Hote hote(nombre);
    QVERIFY(hote.Montre());
    hote.pastilles[retiree]->setFocus();
    hote.liste->RetirePastille(hote.pastilles[retiree], hote.suite);
    QWidget * const attendu =
        cible < 0 ? static_cast<QWidget *>(hote.suite) : hote.pastilles[cible];
    QCOMPARE(QApplication::focusWidget(), attendu);
}

void tst_ListePastille::focusVersCelleQuiSort()
{
    Hote hote(6);
    QVERIFY(hote.Montre());
    hote.Retrecis(2);
    hote.pastilles[1]->setFocus();
    QVERIFY(!hote.liste->WidgetEstVisible(2));
    hote.liste->RetirePastille(hote.pastilles[1], hote.suite);
    QCOMPARE(QApplication::focusWidget(), hote.pastilles[2]); // which has room now
}

void tst_ListePastille::sansFocusRienNeBouge()
{
    Hote hote(3);
    QVERIFY(hote.Montre());
    hote.suite->setFocus();
    hote.liste->RetirePastille(hote.pastilles[1], nullptr);
    QVERIFY(hote.suite->hasFocus());
    hote.pastilles[0]->setFocus();
    hote.liste->RetirePastille(hote.pastilles[2], hote.suite);
    QVERIFY(hote.pastilles[0]->hasFocus());
}

QTEST_MAIN(tst_ListePastille)
#include "tst_ListePastille.moc"
