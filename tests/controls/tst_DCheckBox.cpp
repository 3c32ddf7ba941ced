// tests/controls/tst_DCheckBox.cpp
#include "controls/EssaisBouton.h"
#include "style/DStyleProxy.h"

#include <QCheckBox>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;
using namespace EssaisBouton;

class tst_DCheckBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void constructeur();
    void texte_data();
    void texte();
    void libelleVide();
    void metsCochay_data();
    void metsCochay();
    void clicSurLeLibelle_data();
    void clicSurLeLibelle();
    void relacheHorsDuLibelle();
    void lienNonSuivi();
    void doubleClicBasculeDeuxFois();
    void pressionLaissee();
    void filtreLaisseLeReste_data();
    void filtreLaisseLeReste();
    void desactivay_data();
    void desactivay();
};

void tst_DCheckBox::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DCheckBox::construction()
{
    DCheckBox const controle(u"abc"_s);
    QVERIFY(qobject_cast<QCheckBox *>(&Indicateur(controle)));
    QCOMPARE(Indicateur(controle).property(DStyleProxy::DonneNomAttributPourStyle()),
             QVariant(true));
    QCOMPARE(Indicateur(controle).text(), QString());
    QVERIFY(!qobject_cast<QCheckBox *>(&Indicateur(controle))->isTristate());
}

void tst_DCheckBox::constructeur()
{
    QWidget parent;
    QVERIFY(!DCheckBox(u"abc"_s).EstCochay());
    QVERIFY(!DCheckBox(u"abc"_s, &parent, false).EstCochay());
    DCheckBox const cochee(u"abc"_s, &parent, true);
    QVERIFY(cochee.EstCochay());
    QCOMPARE(cochee.parentWidget(), &parent);
}

void tst_DCheckBox::texte_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("null") << QString();
    QTest::newRow("plain") << u"abc"_s;
    QTest::newRow("mark-up stays") << u"<b>a</b> <a href='x'>lien</a>"_s;
    QTest::newRow("ampersand is no mnemonic") << u"&abc"_s;
    QTest::newRow("blanks stay") << u"  a\nb "_s;
}

void tst_DCheckBox::texte()
{
    QFETCH(QString, texte);
    DCheckBox const controle(texte);
    QCOMPARE(QString(controle.DonneTexte()), texte);
    QCOMPARE(Libelle(controle).text(), texte);
}

void tst_DCheckBox::libelleVide()
{
    QWidget fenetre;
    auto * const sansTexte = new DCheckBox(QString(), &fenetre);
    auto * const avecTexte = new DCheckBox(u"a"_s, &fenetre);
    fenetre.show();
    QVERIFY(!Libelle(*sansTexte).isVisible());
    QVERIFY(Indicateur(*sansTexte).isVisible());
    QVERIFY(Libelle(*avecTexte).isVisible());
}

void tst_DCheckBox::metsCochay_data()
{
    QTest::addColumn<bool>("avant");
    QTest::addColumn<bool>("apres");
    QTest::addColumn<int>("changements");
    QTest::newRow("checked") << false << true << 1;
    QTest::newRow("unchecked") << true << false << 1;
    QTest::newRow("checked again") << true << true << 0;
    QTest::newRow("unchecked again") << false << false << 0;
}

void tst_DCheckBox::metsCochay()
{
    QFETCH(bool, avant);
    QFETCH(bool, apres);
    QFETCH(int, changements);
    DCheckBox controle(u"a"_s, nullptr, avant);
    QSignalSpy const cochages(&controle, &DCheckBox::SignalCochageChangay);
    QSignalSpy const bascules(&controle, &DCheckBox::toggled);
    QSignalSpy const etats(&controle, &DCheckBox::stateChanged);
    controle.MetsCochay(apres);
    QCOMPARE(controle.EstCochay(), apres);
    // Deliberate: the value is heard in all cases.
    QCOMPARE(cochages, (QList<QVariantList>{{apres}}));
    QCOMPARE(bascules, (QList<QVariantList>{{apres}}));
    QCOMPARE(etats.count(), changements);
}

void tst_DCheckBox::clicSurLeLibelle_data()
{
    QTest::addColumn<Qt::MouseButton>("bouton");
    QTest::addColumn<bool>("avant");
    QTest::newRow("left") << Qt::LeftButton << false;
    QTest::newRow("left on checked") << Qt::LeftButton << true;
    QTest::newRow("right") << Qt::RightButton << false;
    QTest::newRow("middle") << Qt::MiddleButton << true;
    QTest::newRow("back") << Qt::BackButton << false;
}

void tst_DCheckBox::clicSurLeLibelle()
{
    QFETCH(Qt::MouseButton, bouton);
    QFETCH(bool, avant);
    DCheckBox controle(u"abc"_s, nullptr, avant);
    controle.show();
    QTest::mousePress(&Libelle(controle), bouton);
    QCOMPARE(controle.EstCochay(), avant);
    QTest::mouseRelease(&Libelle(controle), bouton);
    QCOMPARE(controle.EstCochay(), !avant);
    QTest::mouseClick(&Libelle(controle), bouton);
    QCOMPARE(controle.EstCochay(), avant);
}

// Deliberate: only the release counts, wherever it is.
void tst_DCheckBox::relacheHorsDuLibelle()
{
    DCheckBox controle(u"abc"_s);
    controle.show();
    QTest::mousePress(&Libelle(controle), Qt::LeftButton);
    QTest::mouseRelease(&Libelle(controle), Qt::LeftButton, {}, QPoint(-50, 500));
    QVERIFY(controle.EstCochay());
    QTest::mouseRelease(&Libelle(controle), Qt::LeftButton);
    QVERIFY(!controle.EstCochay());
}

void tst_DCheckBox::lienNonSuivi()
{
    DCheckBox controle(u"<a href='http://exemple.invalid'>abcdef</a>"_s);
    controle.show();
    QLabel & libelle = Libelle(controle);
    QSignalSpy const suivis(&libelle, &QLabel::linkActivated);
    QPoint const surLeLien(3, libelle.height() / 2);
    QTest::mouseClick(&libelle, Qt::LeftButton, {}, surLeLien);
    QVERIFY(controle.EstCochay());
    QCOMPARE(suivis.count(), 0);

    // The place is right: without the control's filter the link is activated.
    libelle.removeEventFilter(&controle);
    QTest::mouseClick(&libelle, Qt::LeftButton, {}, surLeLien);
    QCOMPARE(suivis.count(), 1);
    QVERIFY(controle.EstCochay());
}

void tst_DCheckBox::doubleClicBasculeDeuxFois()
{
    DCheckBox controle(u"abc"_s);
    controle.show();
    QSignalSpy const bascules(&controle, &DCheckBox::toggled);
    QLabel & libelle = Libelle(controle);
    QTest::mouseClick(&libelle, Qt::LeftButton);
    QTest::mouseDClick(&libelle, Qt::LeftButton);
    QTest::mouseRelease(&libelle, Qt::LeftButton);
    QCOMPARE(bascules, (QList<QVariantList>{{true}, {false}}));
}

void tst_DCheckBox::pressionLaissee()
{
    DCheckBox controle(u"abc"_s);
    controle.show();
    QLabel & libelle = Libelle(controle);
    QMouseEvent pression(QEvent::MouseButtonPress, QPointF(1, 1),
                         libelle.mapToGlobal(QPointF(1, 1)), Qt::LeftButton, Qt::LeftButton, {});
    QVERIFY(!controle.eventFilter(&libelle, &pression));
    QTest::mousePress(&libelle, Qt::LeftButton);
    QVERIFY(!controle.EstCochay());
    QVERIFY(!Indicateur(controle).isDown());
}

void tst_DCheckBox::filtreLaisseLeReste_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("surLibelle");
    QTest::newRow("double click") << int(QEvent::MouseButtonDblClick) << true;
    QTest::newRow("move") << int(QEvent::MouseMove) << true;
    QTest::newRow("release on the indicator") << int(QEvent::MouseButtonRelease) << false;
}

void tst_DCheckBox::filtreLaisseLeReste()
{
    QFETCH(int, type);
    QFETCH(bool, surLibelle);
    DCheckBox controle(u"abc"_s);
    QMouseEvent evenement(QEvent::Type(type), QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                          Qt::LeftButton, {});
    QObject * const objet = surLibelle ? static_cast<QObject *>(&Libelle(controle))
                                       : static_cast<QObject *>(&Indicateur(controle));
    QVERIFY(!controle.eventFilter(objet, &evenement));
    QVERIFY(!controle.EstCochay());
}

void tst_DCheckBox::desactivay_data()
{
    QTest::addColumn<bool>("parLeParent");
    QTest::newRow("itself") << false;
    QTest::newRow("by its parent") << true;
}

void tst_DCheckBox::desactivay()
{
    QFETCH(bool, parLeParent);
    QWidget parent;
    auto * const controle = new DCheckBox(u"abc"_s, &parent);
    parent.show();
    (parLeParent ? &parent : controle)->setEnabled(false);
    QVERIFY(!Libelle(*controle).isEnabled());

    QMouseEvent relache(QEvent::MouseButtonRelease, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                        Qt::NoButton, {});
    QCoreApplication::sendEvent(&Libelle(*controle), &relache);
    QVERIFY(!controle->EstCochay());
    QVERIFY(!controle->eventFilter(&Libelle(*controle), &relache));
    controle->MetsCochay(true);
    QVERIFY(controle->EstCochay());
}

QTEST_MAIN(tst_DCheckBox)
#include "tst_DCheckBox.moc"
