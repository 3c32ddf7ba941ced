#include "lists/WidgetListeEditableAvecListeChoix.h"

#include "lists/EssaisAvecListeChoix.h"

#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

using namespace EssaisAvecListeChoix;
using namespace Qt::StringLiterals;

// Editors that come and go, and hosts that change or delete the list meanwhile.
class tst_WidgetListeEditableAvecListeChoixVies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void rangeeRetiree();
    void listeDetruite();
    void detruitePendantLeChoix();
    void autreChampDeLHote();
    void editeursSuccessifs();
    void perteDuFocus();
    void proposantQuiSeRemplace();
    void proposantQuiRetireLaRangee();
    void proposantQuiDetruitLaListe();

private:
    std::unique_ptr<Liste> maListe;
};

void tst_WidgetListeEditableAvecListeChoixVies::init()
{
    maListe = std::make_unique<Liste>();
    maListe->Remplis({u"a"_s, u"b"_s, u"c"_s});
    maListe->MetsProposant([](int, QString const & texte) { return Propose(texte); });
    maListe->Montre();
}

void tst_WidgetListeEditableAvecListeChoixVies::cleanup()
{
    maListe.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_WidgetListeEditableAvecListeChoixVies::rangeeRetiree()
{
    maListe->Ouvre(0, 0);
    QVERIFY(maListe->ChoixVisibles());
    maListe->RetireRangee(0, true);
    QTRY_VERIFY(!maListe->ChoixVisibles());
    QCOMPARE(maListe->Textes(), (QStringList{u"b"_s, u"c"_s}));
}

void tst_WidgetListeEditableAvecListeChoixVies::listeDetruite()
{
    maListe->Ouvre(0, 0);
    QPointer<QWidget> const choix = maListe->PreteListeChoix();
    QVERIFY(choix->isVisible());
    maListe.reset();
    QVERIFY(!choix);
}

void tst_WidgetListeEditableAvecListeChoixVies::detruitePendantLeChoix()
{
    QLineEdit * const editeur = maListe->Ouvre(0, 0);
    QTest::keyClicks(editeur, u"ar"_s);
    connect(maListe.get(), &Liste::SignalEdition, this, [this] { maListe.reset(); });
    QTest::mouseClick(
        maListe->Choix()->viewport(), Qt::LeftButton, {},
        maListe->Choix()->visualRect(maListe->Choix()->model()->index(1, 0)).center());
    QVERIFY(!maListe);
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_WidgetListeEditableAvecListeChoixVies::autreChampDeLHote()
{
    QWidget fenetre;
    QVBoxLayout disposition(&fenetre);
    QLineEdit champ;
    Liste liste;
    disposition.addWidget(&champ);
    disposition.addWidget(&liste);
    liste.Remplis({u"a"_s});
    liste.MetsProposant([](int, QString const & texte) { return Propose(texte); });
    fenetre.show();
    fenetre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    liste.PreteVue()->setFocus();

    champ.setFocus();
    QTest::keyClicks(&champ, u"ar"_s);

    QVERIFY(!liste.PreteListeChoix()->isVisible());
    QCOMPARE(champ.text(), u"ar"_s);
}

void tst_WidgetListeEditableAvecListeChoixVies::editeursSuccessifs()
{
    QTest::keyClick(maListe->Ouvre(0, 0), Qt::Key_Escape);
    QTRY_VERIFY(maListe->Editeurs().isEmpty() || !maListe->ChoixVisibles());
    if (!maListe->Editeurs().isEmpty())
        QTest::keyClick(maListe->Editeurs().first(), Qt::Key_Escape);
    QTRY_VERIFY(maListe->Editeurs().isEmpty());

    QLineEdit * const editeur = maListe->Ouvre(2, 0);
    QTest::keyClicks(editeur, u"ba"_s);

    QVERIFY(maListe->ChoixVisibles());
    QCOMPARE(maListe->Proposes(), QStringList{u"bateau"_s});
    QTest::keyClick(editeur, Qt::Key_Down);
    QTest::keyClick(editeur, Qt::Key_Return);
    QTRY_COMPARE(maListe->Textes(), (QStringList{u"a"_s, u"b"_s, u"bateau"_s}));
}

void tst_WidgetListeEditableAvecListeChoixVies::perteDuFocus()
{
    maListe->Ouvre(0, 0);
    QVERIFY(maListe->ChoixVisibles());
    maListe->DonneBoutonAjouter()->setFocus();
    QTRY_VERIFY(!maListe->ChoixVisibles());
    QTRY_VERIFY(maListe->Editeurs().isEmpty());
}

// A host whose function changes or deletes the list that asks it.
void tst_WidgetListeEditableAvecListeChoixVies::proposantQuiSeRemplace()
{
    auto temoin = std::make_shared<int>(0);
    std::weak_ptr<int> const vie = temoin;
    maListe->MetsProposant([this, temoin, vie](int, QString const & texte) {
        maListe->MetsProposant({});
        return vie.expired() ? WidgetListeEditableAvecListeChoix::Propositions() : Propose(texte);
    });
    temoin.reset();
    maListe->Ouvre(0, 0);
    QCOMPARE(maListe->Choix()->model()->rowCount(), 3);
    QVERIFY(vie.expired());
    QTest::keyClicks(maListe->Editeurs().first(), u"ar"_s);
    QVERIFY(!maListe->ChoixVisibles());
}

void tst_WidgetListeEditableAvecListeChoixVies::proposantQuiRetireLaRangee()
{
    maListe->MetsProposant([this](int, QString const & texte) {
        maListe->RetireRangee(0, false);
        return Propose(texte);
    });
    maListe->Ouvre(0, 0);
    QTRY_VERIFY(maListe->Editeurs().isEmpty());
    QVERIFY(!maListe->ChoixVisibles());
    QCOMPARE(maListe->Textes(), (QStringList{u"b"_s, u"c"_s}));
}

void tst_WidgetListeEditableAvecListeChoixVies::proposantQuiDetruitLaListe()
{
    QLineEdit * const editeur = maListe->Ouvre(0, 0);
    maListe->MetsProposant([this](int, QString const & texte) {
        maListe.reset();
        return Propose(texte);
    });
    QTest::keyClick(editeur, Qt::Key_A);
    QVERIFY(!maListe);
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

QTEST_MAIN(tst_WidgetListeEditableAvecListeChoixVies)
#include "tst_WidgetListeEditableAvecListeChoixVies.moc"
