// tests/controls/tst_DRadioButton.cpp
#include "controls/EssaisBouton.h"
#include "outils/LecteurSimulay.h"
#include "style/DStyleProxy.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using namespace EssaisBouton;

class tst_DRadioButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void construction();
    void constructeur();
    void texte();
    void libelleVide();
    void groupeDuConstructeur();
    void groupeDuConstructeurSansSignal();
    void associerAuGroupe();
    void associerAAucunGroupe();
    void changementDeGroupe();
    void exclusion();
    void metsCochaySurLaMemeValeur_data();
    void metsCochaySurLaMemeValeur();
    void sansGroupe();
    void clicSurLeLibelle_data();
    void clicSurLeLibelle();
    void clicSurLeLibelleDuCochay();
    void signaux_data();
    void signaux();
    void desactivay();
    void suppressionParUnReceveur_data();
    void suppressionParUnReceveur();
    void suppressionDeLaFenetreParLeVoisin();
};

// Behind the signals Qt tells readers of the change, with the button in hand.
void tst_DRadioButton::initTestCase()
{
    LecteurSimulay::Installe();
}

void tst_DRadioButton::cleanup()
{
    LecteurSimulay::Oublie();
    DetruisAttente();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DRadioButton::construction()
{
    DRadioButton const controle(u"abc"_s);
    QVERIFY(qobject_cast<QRadioButton *>(&Indicateur(controle)));
    QVERIFY(!Indicateur(controle).property(DStyleProxy::DonneNomAttributPourStyle()).isValid());
}

void tst_DRadioButton::constructeur()
{
    QWidget parent;
    QVERIFY(!DRadioButton(u"abc"_s).EstCochay());
    DRadioButton const cochay(u"abc"_s, &parent, true);
    QVERIFY(cochay.EstCochay());
    QCOMPARE(cochay.parentWidget(), &parent);
    QCOMPARE(Indicateur(cochay).group(), nullptr);
}

void tst_DRadioButton::texte()
{
    DRadioButton const controle(u"<i>a</i> &amp; b"_s);
    QCOMPARE(QString(controle.DonneTexte()), u"<i>a</i> &amp; b"_s);
}

void tst_DRadioButton::libelleVide()
{
    DRadioButton controle{QString()};
    controle.show();
    QVERIFY(!Libelle(controle).isVisible());
}

void tst_DRadioButton::groupeDuConstructeur()
{
    QButtonGroup groupe;
    DRadioButton const premier(u"a"_s, nullptr, false, &groupe);
    DRadioButton const second(u"b"_s, nullptr, false, &groupe);
    QCOMPARE(groupe.buttons(),
             (QList<QAbstractButton *>{&Indicateur(premier), &Indicateur(second)}));
    // What the group gives for -1.
    QCOMPARE(groupe.id(&Indicateur(premier)), -2);
    QCOMPARE(groupe.id(&Indicateur(second)), -3);
}

void tst_DRadioButton::groupeDuConstructeurSansSignal()
{
    QButtonGroup groupe;
    DRadioButton const premier(u"a"_s, nullptr, true, &groupe);
    QSignalSpy const bascules(&groupe, &QButtonGroup::buttonToggled);
    DRadioButton const second(u"b"_s, nullptr, true, &groupe);
    QVERIFY(second.EstCochay());
    QVERIFY(!premier.EstCochay());
    QCOMPARE(bascules.count(), 1); // of the first one, which is unchecked
    QCOMPARE(bascules.at(0).at(0).value<QAbstractButton *>(), &Indicateur(premier));
}

void tst_DRadioButton::associerAuGroupe()
{
    QButtonGroup groupe;
    DRadioButton controle(u"a"_s);
    controle.AssocierAuGroupe(&groupe);
    controle.AssocierAuGroupe(&groupe);
    QCOMPARE(groupe.buttons(), QList<QAbstractButton *>{&Indicateur(controle)});
}

void tst_DRadioButton::associerAAucunGroupe()
{
    QButtonGroup groupe;
    DRadioButton controle(u"a"_s, nullptr, false, &groupe);
    controle.AssocierAuGroupe(nullptr);
    QCOMPARE(Indicateur(controle).group(), &groupe);
}

void tst_DRadioButton::changementDeGroupe()
{
    QButtonGroup ancien;
    QButtonGroup nouveau;
    DRadioButton controle(u"a"_s, nullptr, false, &ancien);
    controle.AssocierAuGroupe(&nouveau);
    QVERIFY(ancien.buttons().isEmpty());
    QCOMPARE(nouveau.buttons(), QList<QAbstractButton *>{&Indicateur(controle)});
}

void tst_DRadioButton::exclusion()
{
    QButtonGroup groupe;
    QWidget ici;
    QWidget ailleurs;
    DRadioButton premier(u"a"_s, &ici, true, &groupe);
    DRadioButton second(u"b"_s, &ailleurs, false, &groupe);
    QSignalSpy const cochages(&premier, &DBoutonAbstrait::SignalCochageChangay);
    second.MetsCochay(true);
    QVERIFY(!premier.EstCochay());
    QVERIFY(second.EstCochay());
    QCOMPARE(cochages, (QList<QVariantList>{{false}}));
    second.MetsCochay(false); // refused: one is always checked
    QVERIFY(second.EstCochay());
}

void tst_DRadioButton::metsCochaySurLaMemeValeur_data()
{
    QTest::addColumn<bool>("cochay");
    QTest::newRow("checked") << true;
    QTest::newRow("unchecked") << false;
}

// Deliberate: unlike the check box, nothing is heard.
void tst_DRadioButton::metsCochaySurLaMemeValeur()
{
    QFETCH(bool, cochay);
    DRadioButton controle(u"a"_s, nullptr, cochay);
    QSignalSpy const cochages(&controle, &DBoutonAbstrait::SignalCochageChangay);
    controle.MetsCochay(cochay);
    QCOMPARE(cochages.count(), 0);
    QCOMPARE(controle.EstCochay(), cochay);
}

// Deliberate: each indicator is alone in its parent, so nothing but a group excludes.
void tst_DRadioButton::sansGroupe()
{
    QWidget parent;
    DRadioButton premier(u"a"_s, &parent, true);
    DRadioButton second(u"b"_s, &parent, true);
    QVERIFY(premier.EstCochay());
    premier.MetsCochay(false);
    QVERIFY(!premier.EstCochay());
    QVERIFY(second.EstCochay());
    parent.show();
    QTest::mouseClick(&Libelle(second), Qt::LeftButton);
    QVERIFY(!second.EstCochay());
}

void tst_DRadioButton::clicSurLeLibelle_data()
{
    QTest::addColumn<Qt::MouseButton>("bouton");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_DRadioButton::clicSurLeLibelle()
{
    QFETCH(Qt::MouseButton, bouton);
    DRadioButton controle(u"<a href='x'>abc</a>"_s);
    controle.show();
    QSignalSpy const liens(&Libelle(controle), &QLabel::linkActivated);
    QTest::mousePress(&Libelle(controle), bouton, {}, QPoint(3, 5));
    QVERIFY(!controle.EstCochay());
    QTest::mouseRelease(&Libelle(controle), bouton, {}, QPoint(3, 5));
    QVERIFY(controle.EstCochay());
    QCOMPARE(liens.count(), 0);
}

void tst_DRadioButton::clicSurLeLibelleDuCochay()
{
    QButtonGroup groupe;
    DRadioButton controle(u"abc"_s, nullptr, true, &groupe);
    controle.show();
    QSignalSpy const cochages(&controle, &DBoutonAbstrait::SignalCochageChangay);
    QTest::mouseClick(&Libelle(controle), Qt::LeftButton);
    QVERIFY(controle.EstCochay());
    QCOMPARE(cochages.count(), 0);
}

void tst_DRadioButton::signaux_data()
{
    QTest::addColumn<int>("geste");
    QTest::newRow("click on the button") << 0;
    QTest::newRow("click on the label") << 1;
    QTest::newRow("Space") << 2;
    QTest::newRow("MetsCochay") << 3;
}

void tst_DRadioButton::signaux()
{
    QFETCH(int, geste);
    QButtonGroup groupe;
    DRadioButton voisin(u"a"_s, nullptr, true, &groupe);
    DRadioButton controle(u"b"_s, nullptr, false, &groupe);
    controle.show();
    QStringList entendus;
    connect(&voisin, &DBoutonAbstrait::SignalCochageChangay, this,
            [&](bool cochay) { entendus << (cochay ? u"voisin true"_s : u"voisin false"_s); });
    connect(&controle, &DBoutonAbstrait::SignalCochageChangay, this,
            [&](bool cochay) { entendus << (cochay ? u"true"_s : u"false"_s); });
    if (geste == 0)
        QTest::mouseClick(&Indicateur(controle), Qt::LeftButton, {}, QPoint(5, 7));
    else if (geste == 1)
        QTest::mouseClick(&Libelle(controle), Qt::LeftButton);
    else if (geste == 2)
        QTest::keyClick(&Indicateur(controle), Qt::Key_Space);
    else
        controle.MetsCochay(true);
    QCOMPARE(entendus, (QStringList{u"voisin false"_s, u"true"_s}));
}

void tst_DRadioButton::desactivay()
{
    DRadioButton controle(u"abc"_s);
    controle.show();
    controle.setEnabled(false);
    QMouseEvent relache(QEvent::MouseButtonRelease, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                        Qt::NoButton, {});
    QVERIFY(!controle.eventFilter(&Libelle(controle), &relache));
    QCoreApplication::sendEvent(&Libelle(controle), &relache);
    QVERIFY(!controle.EstCochay());
}

void tst_DRadioButton::suppressionParUnReceveur_data()
{
    QTest::addColumn<int>("geste");
    QTest::addColumn<bool>("boucle");
    for (bool const boucle : {false, true}) {
        char const * const maniere = boucle ? "in a loop of its own" : "at once";
        QTest::addRow("click on the button, %s", maniere) << 0 << boucle;
        QTest::addRow("click on the label, %s", maniere) << 1 << boucle;
        QTest::addRow("Space, %s", maniere) << 2 << boucle;
        QTest::addRow("MetsCochay, %s", maniere) << 3 << boucle;
    }
    QTest::newRow("through the group, at once") << 4 << false;
}

void tst_DRadioButton::suppressionParUnReceveur()
{
    QFETCH(int, geste);
    QFETCH(bool, boucle);
    QButtonGroup groupe;
    QPointer<QWidget> const fenetre = new QWidget;
    auto * const controle = new DRadioButton(u"a"_s, fenetre, false, &groupe);
    QPointer<QAbstractButton> const indicateur(&Indicateur(*controle));
    fenetre->show();
    connect(controle, &DBoutonAbstrait::SignalCochageChangay, this,
            [&] { boucle ? SupprimeDansUneBoucle(fenetre) : delete fenetre.data(); });
    if (geste == 0)
        QTest::mouseClick(indicateur, Qt::LeftButton, {}, QPoint(5, 7));
    else if (geste == 1)
        RelacheSurLibelle(*controle);
    else if (geste == 2)
        QTest::keyClick(indicateur, Qt::Key_Space);
    else if (geste == 3)
        controle->MetsCochay(true);
    else
        groupe.buttons().first()->setChecked(true);
    QVERIFY(!fenetre);
    QVERIFY(groupe.buttons().isEmpty());
    QVERIFY(indicateur); // it was in use when the window went
    DetruisAttente();
    QVERIFY(!indicateur);
}

// The button that is being checked is not the one whose signal is heard.
void tst_DRadioButton::suppressionDeLaFenetreParLeVoisin()
{
    QButtonGroup groupe;
    QPointer<QWidget> const fenetre = new QWidget;
    auto * const premier = new DRadioButton(u"a"_s, fenetre, true, &groupe);
    auto * const second = new DRadioButton(u"b"_s, fenetre, false, &groupe);
    fenetre->show();
    connect(premier, &DBoutonAbstrait::SignalCochageChangay, this, [&] { delete fenetre.data(); });
    QTest::mouseClick(&Indicateur(*second), Qt::LeftButton, {}, QPoint(5, 7));
    QVERIFY(!fenetre);
    QVERIFY(groupe.buttons().isEmpty());
}

QTEST_MAIN(tst_DRadioButton)
#include "tst_DRadioButton.moc"
