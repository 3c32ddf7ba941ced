// tests/editing/tst_DComboJetonable.cpp
#include "editing/DComboJetonable.h"

#include "editing/EssaisJetons.h"
#include "foundation/TexteRiche.h"
#include "style/DStyleProxy.h"

#include <QtTest>

#include <memory>

using namespace EssaisJetons;
using namespace Qt::StringLiterals;

class tst_DComboJetonable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void valeursDeDepart_data();
    void valeursDeDepart();
    void largeurDuChamp();
    void jetonPrendLaPlaceDuTexte();
    void infobulle_data();
    void infobulle();
    void finDuJeton();
    void finSansJeton();
    void jetonRemplace();
    void texteDeLHoteTermineLeJeton();
    void articleTermineLeJeton();
    void texteVideGardeLeJeton();
    void texteDUnJetonVide();
    void texteDeRemplacement();
    void showPopupNOuvreRien();
    void signalDeFermetureJamaisEmis();
    void autreChampDeLHote();
    void plusEditable();
    void destruction_data();
    void destruction();
};

void tst_DComboJetonable::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DComboJetonable::valeursDeDepart_data()
{
    QTest::addColumn<bool>("avecIcones");
    QTest::newRow("with icons") << true;
    QTest::newRow("without icons") << false;
}

void tst_DComboJetonable::valeursDeDepart()
{
    QFETCH(bool, avecIcones);
    Icones const icones;
    std::unique_ptr<DComboJetonable> const combo(avecIcones ? CreeAvecIcones(icones)
                                                            : CreeSansIcones());
    QVERIFY(combo->isEditable());
    QVERIFY(combo->hasMouseTracking());
    QVERIFY(PreteChamp(*combo).inherits("DLineEditJetonable"));
    QVERIFY(PreteChamp(*combo).hasMouseTracking());
    QVERIFY(!combo->UnJetonEstActif());
    QCOMPARE(combo->currentText(), QString());
    QCOMPARE(PreteChamp(*combo).toolTip(), QString());
    QCOMPARE(combo->insertPolicy(), QComboBox::InsertAtBottom);
    QCOMPARE(PreteChamp(*combo).completer()->completionMode(), QCompleter::InlineCompletion);
    // An icon in place of the arrow.
    char const * const attribut = DStyleProxy::DonneNomAttributStyleComboBoxSansFleche();
    QCOMPARE(combo->property(attribut).toBool(), avecIcones);
    if (avecIcones)
        QCOMPARE(DonneCouleurIcone(*combo), kNormale);
}

void tst_DComboJetonable::largeurDuChamp()
{
    Icones const icones;
    std::unique_ptr<DComboJetonable> const avec(CreeAvecIcones(icones));
    std::unique_ptr<DComboJetonable> const sans(CreeSansIcones());

    QCOMPARE(PreteChamp(*avec).maximumWidth(), 175);
    QCOMPARE(PreteChamp(*sans).maximumWidth(), QWIDGETSIZE_MAX);

    avec->resize(600, 30);
    avec->grab();
    QCOMPARE(PreteChamp(*avec).width(), 175);
}

void tst_DComboJetonable::jetonPrendLaPlaceDuTexte()
{
    std::unique_ptr<DComboJetonable> const combo(CreeSansIcones());
    combo->setEditText(u"texte libre"_s);
    QSignalSpy const changements(&PreteChamp(*combo), &QLineEdit::textChanged);
    QSignalSpy const jeton(&PreteChamp(*combo), SIGNAL(SignalJetonChangay()));

    combo->PrendsTexteJeton(u"jeton"_s, {});

    QVERIFY(combo->UnJetonEstActif());
    QCOMPARE(combo->currentText(), QString());
    QCOMPARE(changements.count(), 0);
    QCOMPARE(jeton.count(), 1);
    QVERIFY(!PreteChamp(*combo).signalsBlocked());
    QCOMPARE(PreteChamp(*combo).cursor().shape(), Qt::ArrowCursor);
}

void tst_DComboJetonable::infobulle_data()
{
    QTest::addColumn<QString>("infobulle");
    QTest::newRow("plain") << u"Nom commun"_s;
    QTest::newRow("with tags") << u"<b>Nom</b> commun"_s;
    QTest::newRow("empty") << QString();
}

void tst_DComboJetonable::infobulle()
{
    QFETCH(QString, infobulle);
    std::unique_ptr<DComboJetonable> const combo(CreeSansIcones());

    combo->PrendsTexteJeton(u"jeton"_s, infobulle);

    QString const attendue = RoutinesGeneralesQt::DonneTexteRichePourInfobulle(infobulle, true);
    QCOMPARE(PreteChamp(*combo).toolTip(), attendue);
    QCOMPARE(attendue.isEmpty(), infobulle.isEmpty());
    QCOMPARE(combo->toolTip(), QString());
}

void tst_DComboJetonable::finDuJeton()
{
    std::unique_ptr<DComboJetonable> const combo(CreeSansIcones());
    combo->PrendsTexteJeton(u"jeton"_s, u"infobulle"_s);
    QSignalSpy const jeton(&PreteChamp(*combo), SIGNAL(SignalJetonChangay()));

    combo->DesactiveJeton();

    QVERIFY(!combo->UnJetonEstActif());
    QCOMPARE(combo->currentText(), QString());
    QCOMPARE(PreteChamp(*combo).toolTip(), QString());
    QCOMPARE(PreteChamp(*combo).cursor().shape(), Qt::IBeamCursor);
    QCOMPARE(jeton.count(), 1);
}

void tst_DComboJetonable::finSansJeton()
{
    std::unique_ptr<DComboJetonable> const combo(CreeSansIcones());
    combo->setEditText(u"texte"_s);
    QSignalSpy const jeton(combo.get(), &DComboJetonable::SignalJetonChangay);

    combo->DesactiveJeton();

    QCOMPARE(combo->currentText(), u"texte"_s);
    QCOMPARE(jeton.count(), 1); // it is told all the same
}

void tst_DComboJetonable::jetonRemplace()
{
    std::unique_ptr<DComboJetonable> const combo(CreeSansIcones());
    combo->PrendsTexteJeton(u"premier"_s, u"un"_s);
    QSignalSpy const jeton(&PreteChamp(*combo), SIGNAL(SignalJetonChangay()));

    combo->PrendsTexteJeton(u"second"_s, {});

    QVERIFY(combo->UnJetonEstActif());
    QCOMPARE(PreteChamp(*combo).toolTip(), QString()); // that of the first is not left behind
    QCOMPARE(jeton.count(), 1);
}

void tst_DComboJetonable::texteDeLHoteTermineLeJeton()
{
    std::unique_ptr<DComboJetonable> const combo(CreeSansIcones());
    combo->PrendsTexteJeton(u"jeton"_s, u"infobulle"_s);
    bool actif = true;
    connect(combo.get(), &QComboBox::currentTextChanged, this,
            [&] { actif = combo->UnJetonEstActif(); });

    combo->setCurrentText(u"texte"_s);

    QVERIFY(!actif); // when the host hears of the text
    QCOMPARE(combo->currentText(), u"texte"_s);
    QCOMPARE(PreteChamp(*combo).toolTip(), QString());
}

void tst_DComboJetonable::articleTermineLeJeton()
{
    std::unique_ptr<DComboJetonable> const combo(CreeSansIcones());
    combo->addItems({u"un"_s, u"deux"_s});
    combo->PrendsTexteJeton(u"jeton"_s, {});

    combo->setCurrentIndex(1);

    QVERIFY(!combo->UnJetonEstActif());
    QCOMPARE(combo->currentText(), u"deux"_s);
}

void tst_DComboJetonable::texteVideGardeLeJeton()
{
    std::unique_ptr<DComboJetonable> const combo(CreeSansIcones());
    combo->PrendsTexteJeton(u"jeton"_s, {});

    combo->clearEditText();
    combo->setEditText({});

    QVERIFY(combo->UnJetonEstActif());
}

void tst_DComboJetonable::texteDUnJetonVide()
{
    std::unique_ptr<DComboJetonable> const combo(CreeSansIcones());
    combo->setEditText(u"texte"_s);

    combo->PrendsTexteJeton({}, {});

    QVERIFY(combo->UnJetonEstActif());
    QVERIFY(!combo->grab().isNull());
}

void tst_DComboJetonable::texteDeRemplacement()
{
    std::unique_ptr<DComboJetonable> const combo(CreeSansIcones());
    combo->PrendsTextePlaceHolder(u"Un mot"_s);
    QCOMPARE(PreteChamp(*combo).placeholderText(), u"Un mot"_s);
}

void tst_DComboJetonable::showPopupNOuvreRien()
{
    std::unique_ptr<DComboJetonable> const combo(CreeSansIcones());
    combo->addItems({u"un"_s, u"deux"_s});
    combo->show();
    QVERIFY(QTest::qWaitForWindowExposed(combo.get()));
    QSignalSpy const demandes(combo.get(), &DComboJetonable::SignalShowPopup);

    static_cast<QComboBox *>(combo.get())->showPopup();

    QCOMPARE(demandes.count(), 1);
    QVERIFY(!combo->view()->isVisible());
}

void tst_DComboJetonable::signalDeFermetureJamaisEmis()
{
    std::unique_ptr<DComboJetonable> const combo(CreeSansIcones());
    QSignalSpy const fermetures(combo.get(), &DComboJetonable::SignalClosePopup);

    combo->showPopup();
    combo->hidePopup();
    combo->PrendsTexteJeton(u"jeton"_s, {});
    combo->DesactiveJeton();

    QCOMPARE(fermetures.count(), 0);
}

void tst_DComboJetonable::autreChampDeLHote()
{
    Icones const icones;
    std::unique_ptr<DComboJetonable> const combo(CreeAvecIcones(icones));
    combo->PrendsTexteJeton(u"jeton"_s, {});
    auto * const champ = new QLineEdit;

    combo->setLineEdit(champ);
    combo->PrendsTexteJeton(u"jeton"_s, {});
    combo->PrendsTextePlaceHolder(u"mot"_s);
    combo->PrendsPoliceJeton(QFont());
    combo->DesactiveJeton();

    QVERIFY(!combo->UnJetonEstActif());
    champ->setText(u"texte"_s);
    combo->PriseDoitChangeeIcone();
    QCOMPARE(DonneCouleurIcone(*combo), kSupprime);
    QTest::mouseClick(combo.get(), Qt::LeftButton, {}, combo->DonneRectIcone().center());
    QCOMPARE(combo->currentText(), QString());
}

void tst_DComboJetonable::plusEditable()
{
    std::unique_ptr<DComboJetonable> const combo(CreeSansIcones());
    combo->PrendsTexteJeton(u"jeton"_s, {});

    combo->setEditable(false);
    QTRY_VERIFY(!combo->UnJetonEstActif());
    combo->PrendsTexteJeton(u"jeton"_s, {});
    QVERIFY(!combo->UnJetonEstActif());
    QVERIFY(!combo->grab().isNull());
}

void tst_DComboJetonable::destruction_data()
{
    QTest::addColumn<bool>("jeton");
    QTest::addColumn<bool>("dansLIcone");
    QTest::addColumn<bool>("demande");
    QTest::newRow("icon signal, token") << true << true << false;
    QTest::newRow("icon signal, empty") << false << true << false;
    QTest::newRow("pop-up asked behind a deletion") << true << true << true;
    QTest::newRow("pop-up asked by the icon") << false << true << true;
    QTest::newRow("pop-up asked beside the icon") << true << false << true;
}

void tst_DComboJetonable::destruction()
{
    QFETCH(bool, jeton);
    QFETCH(bool, dansLIcone);
    QFETCH(bool, demande);
    Icones const icones;
    QPointer<DComboJetonable> const combo = CreeAvecIcones(icones);
    combo->resize(300, 30);
    if (jeton)
        combo->PrendsTexteJeton(u"jeton"_s, {});
    auto const signal =
        demande ? &DComboJetonable::SignalShowPopup : &DComboJetonable::SignalBoutonXAppuyay;
    connect(combo, signal, this, [&combo] { delete combo; });
    QPoint const icone = combo->DonneRectIcone().center();

    QTest::mouseRelease(combo, Qt::LeftButton, {}, dansLIcone ? icone : icone - QPoint(40, 0));

    QVERIFY(!combo);
}

QTEST_MAIN(tst_DComboJetonable)
#include "tst_DComboJetonable.moc"
