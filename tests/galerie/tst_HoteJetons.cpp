// tests/galerie/tst_HoteJetons.cpp
#include "HoteJetons.h"

#include "editing/DComboJetonable.h"
#include "lists/ListeChoixFlottante.h"
#include "noyau/Traductions.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_HoteJetons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void toutEstProposay();
    void secondeDemandeFerme();
    void filtreEnTapant();
    void choisisAuClavier();
    void choisisALaSouris();
    void retourGardeLeMot();
    void echap();
    void fermetureDemandee();
    void categorieDuJeton();
    void quitteLeChamp();
    void suisLaFenetre();
    void apercu();

private:
    QStringList DonneProposes() const;

    std::unique_ptr<QWidget> maFenetre;
    DComboJetonable * monChamp = nullptr;
    QLineEdit * monAutre = nullptr;
    HoteJetons * monHote = nullptr;
};

void tst_HoteJetons::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    maFenetre = std::make_unique<QWidget>();
    auto * const disposition = new QVBoxLayout(maFenetre.get());
    monChamp = new DComboJetonable(nullptr, false, {}, {}, {}, {});
    monAutre = new QLineEdit;
    disposition->addWidget(monChamp);
    disposition->addWidget(monAutre);
    monHote = new HoteJetons(*monChamp);
    maFenetre->resize(300, 200);
    maFenetre->show();
    QVERIFY(QTest::qWaitForWindowActive(maFenetre.get()));
    monChamp->setFocus();
}

void tst_HoteJetons::cleanup()
{
    maFenetre.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QStringList tst_HoteJetons::DonneProposes() const
{
    if (!monHote->PreteListe().isVisible())
        return {};
    QAbstractItemModel const & modele = *monHote->PreteListe().PreteListeChoix()->model();
    QStringList proposes;
    for (int rangee = 0; rangee < modele.rowCount(); ++rangee)
        proposes.append(modele.index(rangee, 0).data().toString());
    return proposes;
}

void tst_HoteJetons::toutEstProposay()
{
    QTest::mouseClick(monChamp->lineEdit(), Qt::LeftButton);

    QCOMPARE(DonneProposes().size(), HoteJetons::DonneCategories().size());
    QVERIFY(monChamp->hasFocus());
    // No name is cut.
    auto & vue = *monHote->PreteListe().PreteListeChoix();
    for (QString const & nom : DonneProposes())
        QVERIFY(vue.fontMetrics().horizontalAdvance(nom) < vue.viewport()->width());
}

void tst_HoteJetons::secondeDemandeFerme()
{
    monChamp->showPopup();
    monChamp->showPopup();
    QCOMPARE(DonneProposes(), QStringList());
}

void tst_HoteJetons::filtreEnTapant()
{
    QTest::keyClicks(monChamp, u"nom"_s);
    QCOMPARE(DonneProposes(), QStringList({u"Nom commun"_s, u"Nom propre"_s,
                                           u"Locution nominale, verbale ou adverbiale"_s}));
    QTest::keyClicks(monChamp, u"xyz"_s);
    QCOMPARE(DonneProposes(), QStringList());
    QCOMPARE(monChamp->currentText(), u"nomxyz"_s);
}

void tst_HoteJetons::choisisAuClavier()
{
    QTest::keyClick(monChamp, Qt::Key_F4);
    QTest::keyClick(monChamp, Qt::Key_Down);
    QTest::keyClick(monChamp, Qt::Key_Down);
    QTest::keyClick(monChamp, Qt::Key_Return);

    QCOMPARE(monHote->DonneCategorie(), 1);
    QVERIFY(monChamp->UnJetonEstActif());
    QVERIFY(monChamp->lineEdit()->toolTip().contains(u"<i>Marie</i>"));
    QCOMPARE(DonneProposes(), QStringList());
}

void tst_HoteJetons::choisisALaSouris()
{
    monChamp->showPopup();
    auto & vue = *monHote->PreteListe().PreteListeChoix();
    QTest::mouseClick(vue.viewport(), Qt::LeftButton, {},
                      vue.visualRect(vue.model()->index(3, 0)).center());

    QCOMPARE(monHote->DonneCategorie(), 3);
}

void tst_HoteJetons::retourGardeLeMot()
{
    QTest::keyClicks(monChamp, u"nom"_s);
    QTest::keyClick(monChamp, Qt::Key_Return);

    QCOMPARE(monHote->DonneCategorie(), -1);
    QCOMPARE(monChamp->currentText(), u"nom"_s);
    QCOMPARE(monChamp->count(), 0); // nor does it become an item
}

void tst_HoteJetons::echap()
{
    monHote->Choisis(0);
    monChamp->showPopup();
    QTest::keyClick(monChamp, Qt::Key_Escape);

    QCOMPARE(DonneProposes(), QStringList());
    QCOMPARE(monHote->DonneCategorie(), -1);
}

void tst_HoteJetons::fermetureDemandee()
{
    monChamp->showPopup();
    Q_EMIT monChamp->SignalClosePopup();
    QCOMPARE(DonneProposes(), QStringList());
}

void tst_HoteJetons::categorieDuJeton()
{
    QCOMPARE(monHote->DonneCategorie(), -1);
    int entendue = -1;
    connect(monChamp, &DComboJetonable::SignalJetonChangay, this,
            [&] { entendue = monHote->DonneCategorie(); });
    monHote->Choisis(4);
    QCOMPARE(entendue, 4);
    QTest::keyClick(monChamp, Qt::Key_Backspace);
    QCOMPARE(entendue, -1);
}

void tst_HoteJetons::quitteLeChamp()
{
    monChamp->showPopup();
    QTest::keyClick(monChamp, Qt::Key_Tab);
    QTRY_VERIFY(monAutre->hasFocus());
    QCOMPARE(DonneProposes(), QStringList());
}

void tst_HoteJetons::suisLaFenetre()
{
    monChamp->showPopup();
    QPoint const avant = monHote->PreteListe().pos() - maFenetre->pos();
    maFenetre->move(maFenetre->pos() + QPoint(40, 30));
    QTRY_COMPARE(monHote->PreteListe().pos() - maFenetre->pos(), avant);
}

void tst_HoteJetons::apercu()
{
    monHote->PreparePourApercu();
    QVERIFY(!monHote->PreteListe().isVisible());
    QCOMPARE(monHote->PreteListe().PreteListeChoix()->model()->rowCount(),
             HoteJetons::DonneCategories().size());

    monChamp->showPopup();
    QTest::keyClicks(monChamp, u"verbe"_s);
    monHote->PreparePourApercu(); // changes nothing that is on the screen
    QCOMPARE(DonneProposes(), QStringList({u"Verbe"_s, u"Adverbe"_s}));
}

QTEST_MAIN(tst_HoteJetons)
#include "tst_HoteJetons.moc"
