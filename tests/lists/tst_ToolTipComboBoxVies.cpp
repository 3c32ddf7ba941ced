#include "lists/ToolTipComboBox.h"

#include "lists/EssaisToolTipComboBox.h"

#include <memory>

using namespace EssaisToolTipComboBox;
using namespace Qt::StringLiterals;

class tst_ToolTipComboBoxVies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void memeId();
    void memeCombo();
    void memeComboAutreId();
    void comboDetruit();
    void comboActifDetruit();
    void popUpDetruit();
    void popUpDetruitPendantDesactiver();
};

void tst_ToolTipComboBoxVies::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ToolTipComboBoxVies::memeId()
{
    ToolTipComboBox popUp;
    QPointer<QComboBox> const ancien = CreeCombo();
    QComboBox * const nouveau = CreeCombo();
    popUp.AjouterComboBox(1, u"a"_s, ancien);
    popUp.AjouterComboBox(1, u"b"_s, nouveau);
    QCOMPARE(popUp.PreteComboBox(1), nouveau);
    QCOMPARE(Rangees(popUp)->count(), 2);
    QCOMPARE(popUp.findChildren<QLabel *>().size(), 1);
    QCOMPARE(Piece<QLabel>(popUp, 0, 0)->text(), u"b: "_s);
    QVERIFY(ancien);
    QVERIFY(ancien->isHidden());
    Ecoute ecoute(popUp);
    ancien->setCurrentIndex(2);
    QCOMPARE(ecoute.Prends(), QStringList());
    QVERIFY(!Bouton(popUp)->isEnabled());
    nouveau->setCurrentIndex(1);
    QCOMPARE(ecoute.Prends(), QStringList({u"1:1"_s, u"+"_s}));
    delete ancien;
    QCOMPARE(ecoute.Prends(), QStringList());
}

void tst_ToolTipComboBoxVies::memeCombo()
{
    ToolTipComboBox popUp;
    QComboBox * const combo = CreeCombo();
    popUp.AjouterComboBox(1, u"a"_s, combo);
    popUp.AjouterComboBox(1, u"b"_s, combo);
    QCOMPARE(Rangees(popUp)->count(), 2);
    QCOMPARE(Piece<QComboBox>(popUp, 0, 1), combo);
    QVERIFY(!combo->isHidden());
    QCOMPARE(Piece<QLabel>(popUp, 0, 0)->text(), u"b: "_s);
    Ecoute ecoute(popUp);
    combo->setCurrentIndex(1);
    QCOMPARE(ecoute.Prends(), QStringList({u"1:1"_s, u"+"_s})); // told once
}

void tst_ToolTipComboBoxVies::memeComboAutreId()
{
    ToolTipComboBox popUp;
    QComboBox * const combo = CreeCombo();
    popUp.AjouterComboBox(1, u"a"_s, combo);
    popUp.AjouterComboBox(2, u"b"_s, combo);
    QCOMPARE(Rangees(popUp)->count(), 2);
    QCOMPARE(popUp.PreteComboBox(1), nullptr);
    QCOMPARE(popUp.PreteComboBox(2), combo);
    Ecoute ecoute(popUp);
    combo->setCurrentIndex(1);
    QCOMPARE(ecoute.Prends(), QStringList({u"2:1"_s, u"+"_s}));
}

void tst_ToolTipComboBoxVies::comboDetruit()
{
    ToolTipComboBox popUp;
    popUp.AjouterComboBox(1, u"a"_s, CreeCombo());
    popUp.AjouterComboBox(2, u"b"_s, CreeCombo());
    delete popUp.PreteComboBox(1);
    QCOMPARE(popUp.PreteComboBox(1), nullptr);
    popUp.MetsIndexCourantComboBox(1, 1);
    QCOMPARE(popUp.TrouveIndexAvecData(1, 101), -1);
    popUp.MetsIndexCourantComboBox(2, 1);
    Bouton(popUp)->click();
    QVERIFY(!Bouton(popUp)->isEnabled());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(popUp.findChildren<QLabel *>().size(), 1); // its label has gone too
    popUp.AjouterComboBox(1, u"c"_s, CreeCombo());
    QVERIFY(popUp.PreteComboBox(1));
}

void tst_ToolTipComboBoxVies::comboActifDetruit()
{
    ToolTipComboBox popUp;
    popUp.AjouterComboBox(1, u"a"_s, CreeCombo());
    popUp.MetsIndexCourantComboBox(1, 1);
    Ecoute ecoute(popUp);
    delete popUp.PreteComboBox(1);
    QCOMPARE(ecoute.Prends(), QStringList({u"-"_s}));
    QVERIFY(!Bouton(popUp)->isEnabled());
}

void tst_ToolTipComboBoxVies::popUpDetruit()
{
    auto parent = std::make_unique<QWidget>();
    auto * const popUp = new ToolTipComboBox(parent.get());
    QPointer<QComboBox> const combo = CreeCombo();
    popUp->AjouterComboBox(1, u"a"_s, combo);
    combo->setCurrentIndex(1);
    QSignalSpy const espion(popUp, &ToolTipComboBox::SignalFiltreActif);
    parent.reset();
    QVERIFY(!combo);
    QCOMPARE(espion.count(), 0);
}

void tst_ToolTipComboBoxVies::popUpDetruitPendantDesactiver()
{
    auto * const popUp = new ToolTipComboBox;
    for (int const id : {1, 2}) {
        popUp->AjouterComboBox(id, u"a"_s, CreeCombo());
        popUp->MetsIndexCourantComboBox(id, 1);
    }
    int fois = 0;
    connect(popUp, &ToolTipComboBox::SignalValeurChanger, this, [&] {
        ++fois;
        popUp->deleteLater();
    });
    Bouton(*popUp)->click();
    QCOMPARE(fois, 2);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QTEST_MAIN(tst_ToolTipComboBoxVies)
#include "tst_ToolTipComboBoxVies.moc"
