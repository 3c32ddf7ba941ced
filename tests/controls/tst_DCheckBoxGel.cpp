// tests/controls/tst_DCheckBoxGel.cpp
//
// The check box whose value the user cannot change.
#include "controls/EssaisBouton.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;
using namespace EssaisBouton;

class tst_DCheckBoxGel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void valeurGelee();
    void valeurDegelee();
    void gelGardeLaPolitiqueDeFocus();
    void politiqueChangeePendantLeGel();
    void degelParUnReceveur();
    void gelSousUnParentDesactivay();
    void clicSurLibelleGelaySansFocus();
};

void tst_DCheckBoxGel::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DCheckBoxGel::valeurGelee()
{
    DCheckBox controle(u"abc"_s, nullptr, true);
    controle.show();
    QSignalSpy const bascules(&controle, &DCheckBox::toggled);
    controle.MetsUtilisateurPeutChangerValeur(false);
    QVERIFY(!Indicateur(controle).isEnabled());
    QVERIFY(Libelle(controle).isEnabled());
    QVERIFY(controle.isEnabled());

    QMouseEvent relache(QEvent::MouseButtonRelease, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                        Qt::NoButton, {});
    QVERIFY(!controle.eventFilter(&Libelle(controle), &relache));
    QTest::mousePress(&Libelle(controle), Qt::LeftButton);
    QCoreApplication::sendEvent(&Libelle(controle), &relache);
    QVERIFY(controle.EstCochay());
    QCOMPARE(bascules.count(), 0);

    controle.MetsCochay(false);
    QVERIFY(!controle.EstCochay());
    QCOMPARE(bascules.count(), 1);
}

void tst_DCheckBoxGel::valeurDegelee()
{
    DCheckBox controle(u"abc"_s);
    controle.show();
    controle.MetsUtilisateurPeutChangerValeur(false);
    controle.MetsUtilisateurPeutChangerValeur(true);
    QVERIFY(Indicateur(controle).isEnabled());
    QTest::mouseClick(&Libelle(controle), Qt::LeftButton);
    QVERIFY(controle.EstCochay());
}

void tst_DCheckBoxGel::gelGardeLaPolitiqueDeFocus()
{
    DCheckBox controle(u"abc"_s);
    controle.setFocusPolicy(Qt::TabFocus);
    for (bool const peut : {true, false, false})
        controle.MetsUtilisateurPeutChangerValeur(peut);
    QCOMPARE(controle.focusPolicy(), Qt::NoFocus);
    for (bool const peut : {true, true})
        controle.MetsUtilisateurPeutChangerValeur(peut);
    QCOMPARE(controle.focusPolicy(), Qt::TabFocus);
    QCOMPARE(Indicateur(controle).focusPolicy(), Qt::TabFocus);
}

void tst_DCheckBoxGel::politiqueChangeePendantLeGel()
{
    DCheckBox controle(u"abc"_s);
    controle.MetsUtilisateurPeutChangerValeur(false);
    controle.setFocusPolicy(Qt::ClickFocus);
    controle.MetsUtilisateurPeutChangerValeur(true);
    QCOMPARE(controle.focusPolicy(), Qt::ClickFocus);
}

void tst_DCheckBoxGel::degelParUnReceveur()
{
    DCheckBox controle(u"abc"_s);
    controle.show();
    QTest::keyPress(&Indicateur(controle), Qt::Key_Space);
    connect(&controle, &DCheckBox::released, &controle,
            [&controle] { controle.MetsUtilisateurPeutChangerValeur(true); });
    controle.MetsUtilisateurPeutChangerValeur(false);
    QVERIFY(Indicateur(controle).isEnabled());
    QCOMPARE(controle.focusPolicy(), Qt::StrongFocus);
}

void tst_DCheckBoxGel::gelSousUnParentDesactivay()
{
    QWidget parent;
    auto * const controle = new DCheckBox(u"abc"_s, &parent);
    parent.setEnabled(false);
    controle->MetsUtilisateurPeutChangerValeur(false);
    parent.setEnabled(true);
    QVERIFY(!Indicateur(*controle).isEnabled());
    parent.setEnabled(false);
    controle->MetsUtilisateurPeutChangerValeur(true);
    QVERIFY(!Indicateur(*controle).isEnabled());
    parent.setEnabled(true);
    QVERIFY(Indicateur(*controle).isEnabled());
    QCOMPARE(controle->focusPolicy(), Qt::StrongFocus);
}

void tst_DCheckBoxGel::clicSurLibelleGelaySansFocus()
{
    QWidget fenetre;
    QHBoxLayout disposition(&fenetre);
    auto * const gelay = new DCheckBox(u"abc"_s);
    auto * const voisin = new DCheckBox(u"def"_s);
    disposition.addWidget(gelay);
    disposition.addWidget(voisin);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    gelay->setFocus();
    QVERIFY(gelay->hasFocus());
    gelay->MetsUtilisateurPeutChangerValeur(false);
    QVERIFY(voisin->hasFocus()); // a disabled box has no focus

    QLabel const & libelle = Libelle(*gelay);
    QTest::mouseClick(fenetre.windowHandle(), Qt::LeftButton, {},
                      libelle.mapTo(&fenetre, libelle.rect().center()));
    QVERIFY(voisin->hasFocus());
    QVERIFY(!gelay->EstCochay());
}

QTEST_MAIN(tst_DCheckBoxGel)
#include "tst_DCheckBoxGel.moc"
