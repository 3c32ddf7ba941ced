#include "lists/WidgetListeEditableAvecListeChoix.h"

#include "lists/EssaisAvecListeChoix.h"

#include <QStandardItemModel>
#include <QToolButton>
#include <QtTest>

#include <memory>

using namespace EssaisAvecListeChoix;
using namespace Qt::StringLiterals;

class tst_WidgetListeEditableAvecListeChoix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void sansProposant();
    void ouverture();
    void colonneEtTexteDemandes();
    void frappe();
    void aucuneProposition();
    void retourSurUneProposition_data();
    void retourSurUneProposition();
    void retourSansProposition();
    void clic();
    void echappement();
    void echappementDansUneNouvelleRangee();
    void largeurEtPlace();
    void fenetreDeplacee();
    void defilement();
    void validateur();
    void suiteDansLaCelluleSuivante();
    void listeActivee();

private:
    std::unique_ptr<Liste> maListe;
    QList<std::pair<int, QString>> mesDemandes;
};

void tst_WidgetListeEditableAvecListeChoix::init()
{
    mesDemandes.clear();
    maListe = std::make_unique<Liste>();
    maListe->Remplis({u"a"_s, u"b"_s, u"c"_s});
    maListe->MetsProposant([this](int colonne, QString const & texte) {
        mesDemandes.append({colonne, texte});
        return Propose(texte);
    });
    maListe->Montre();
}

void tst_WidgetListeEditableAvecListeChoix::cleanup()
{
    maListe.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_WidgetListeEditableAvecListeChoix::sansProposant()
{
    maListe->MetsProposant({});
    QLineEdit * const editeur = maListe->Ouvre(0, 0);
    QVERIFY(editeur);
    QTest::keyClicks(editeur, u"ar"_s);
    QVERIFY(!maListe->ChoixVisibles());
    QTest::keyClick(editeur, Qt::Key_Return);
    QTRY_COMPARE(maListe->Textes().first(), u"ar"_s);
}

void tst_WidgetListeEditableAvecListeChoix::ouverture()
{
    QVERIFY(!maListe->ChoixVisibles());
    QLineEdit * const editeur = maListe->Ouvre(0, 0);
    QVERIFY(editeur);
    QVERIFY(maListe->ChoixVisibles());
    QCOMPARE(maListe->Proposes(), (QStringList{u"arbre"_s, u"arc"_s, u"argent"_s}));
    QVERIFY(editeur->hasFocus());
    QVERIFY(maListe->isActiveWindow());
}

void tst_WidgetListeEditableAvecListeChoix::colonneEtTexteDemandes()
{
    maListe->Ouvre(1, 1);
    QCOMPARE(mesDemandes.size(), 1);
    QCOMPARE(mesDemandes.first().first, 1);
    QCOMPARE(mesDemandes.first().second, u"b2"_s);
    QVERIFY(!maListe->ChoixVisibles());

    maListe->DonneBoutonAjouter()->click();
    QCOMPARE(mesDemandes.size(), 2);
    QCOMPARE(mesDemandes.last().first, 0);
    QCOMPARE(mesDemandes.last().second, QString());
}

void tst_WidgetListeEditableAvecListeChoix::frappe()
{
    QLineEdit * const editeur = maListe->Ouvre(0, 0);
    QTest::keyClicks(editeur, u"arg"_s); // in place of the selected text
    QCOMPARE(maListe->Proposes(), QStringList{u"argent"_s});
    QCOMPARE(editeur->text(), u"arg"_s);
    QTest::keyClick(editeur, Qt::Key_Backspace);
    QCOMPARE(maListe->Proposes().size(), 3);
    QVERIFY(editeur->hasFocus());
}

void tst_WidgetListeEditableAvecListeChoix::aucuneProposition()
{
    QLineEdit * const editeur = maListe->Ouvre(0, 0);
    QTest::keyClicks(editeur, u"xyz"_s);
    QVERIFY(!maListe->ChoixVisibles());
    QTest::keyClick(editeur, Qt::Key_Down);
    QTest::keyClick(editeur, Qt::Key_Return);
    QTRY_COMPARE(maListe->Textes().first(), u"xyz"_s);
    QTRY_VERIFY(maListe->Editeurs().isEmpty());
}

void tst_WidgetListeEditableAvecListeChoix::retourSurUneProposition_data()
{
    QTest::addColumn<QList<int>>("touches");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("the first") << QList<int>{Qt::Key_Down, Qt::Key_Return} << u"arbre"_s;
    QTest::newRow("the second") << QList<int>{Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}
                                << u"arc"_s;
    QTest::newRow("back up") << QList<int>{Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Return}
                             << u"arbre"_s;
    QTest::newRow("the keypad") << QList<int>{Qt::Key_Down, Qt::Key_Enter} << u"arbre"_s;
    QTest::newRow("none is current") << QList<int>{Qt::Key_Return} << u"ar"_s;
    QTest::newRow("none is current, the keypad") << QList<int>{Qt::Key_Enter} << u"ar"_s;
}

void tst_WidgetListeEditableAvecListeChoix::retourSurUneProposition()
{
    QFETCH(QList<int>, touches);
    QFETCH(QString, attendu);
    QSignalSpy const modifications(maListe.get(), &Liste::SignalElementsModifiay);
    QLineEdit * const editeur = maListe->Ouvre(0, 0);
    QTest::keyClicks(editeur, u"ar"_s);

    for (int const touche : touches)
        QTest::keyClick(editeur, static_cast<Qt::Key>(touche));

    QTRY_COMPARE(maListe->Textes().first(), attendu);
    QTRY_VERIFY(maListe->Editeurs().isEmpty());
    QVERIFY(!maListe->ChoixVisibles());
    QTRY_COMPARE(modifications.count(), 1);
    QVERIFY(maListe->PreteVue()->hasFocus());
}

void tst_WidgetListeEditableAvecListeChoix::retourSansProposition()
{
    // Of the text as it was: nothing changes.
    QLineEdit * const editeur = maListe->Ouvre(0, 0);
    QTest::keyClick(editeur, Qt::Key_Return);
    QTRY_VERIFY(maListe->Editeurs().isEmpty());
    QCOMPARE(maListe->Textes().first(), u"a"_s);
}

void tst_WidgetListeEditableAvecListeChoix::clic()
{
    QPointer<QLineEdit> const editeur = maListe->Ouvre(0, 0);
    QTest::keyClicks(editeur, u"ar"_s);
    QPoint const milieu =
        maListe->Choix()->visualRect(maListe->Choix()->model()->index(2, 0)).center();

    QTest::mousePress(maListe->Choix()->viewport(), Qt::LeftButton, {}, milieu);
    QVERIFY(editeur);
    QCOMPARE(editeur->text(), u"ar"_s);
    QVERIFY(editeur->hasFocus());
    QTest::mouseRelease(maListe->Choix()->viewport(), Qt::LeftButton, {}, milieu);

    QTRY_COMPARE(maListe->Textes().first(), u"argent"_s);
    QTRY_VERIFY(maListe->Editeurs().isEmpty());
    QVERIFY(!maListe->ChoixVisibles());
}

void tst_WidgetListeEditableAvecListeChoix::echappement()
{
    QPointer<QLineEdit> const editeur = maListe->Ouvre(0, 0);
    QTest::keyClicks(editeur, u"ar"_s);

    QTest::keyClick(editeur, Qt::Key_Escape);
    QVERIFY(!maListe->ChoixVisibles());
    QVERIFY(editeur && editeur->isVisible());
    QCOMPARE(editeur->text(), u"ar"_s);

    QTest::keyClick(editeur, Qt::Key_Escape);
    QTRY_VERIFY(maListe->Editeurs().isEmpty());
    QCOMPARE(maListe->Textes().first(), u"a"_s);
}

// A release that came up to the view would end the edit of a row that is still empty.
void tst_WidgetListeEditableAvecListeChoix::echappementDansUneNouvelleRangee()
{
    maListe->DonneBoutonAjouter()->click();
    QTRY_VERIFY(maListe->ChoixVisibles());
    QTest::keyClick(maListe->Editeurs().first(), Qt::Key_Escape);
    QCoreApplication::processEvents();
    QVERIFY(!maListe->ChoixVisibles());
    QCOMPARE(maListe->DonneNbRangee(), 4);
    QCOMPARE(maListe->Editeurs().size(), 1);

    QTest::keyPress(maListe->Editeurs().first(), Qt::Key_Escape);
    QTest::keyRelease(maListe->PreteVue(), Qt::Key_Escape);
    QTRY_COMPARE(maListe->DonneNbRangee(), 3);
}

void tst_WidgetListeEditableAvecListeChoix::largeurEtPlace()
{
    QLineEdit const * const editeur = maListe->Ouvre(0, 0);
    ListeChoixFlottante const & liste = *maListe->PreteListeChoix();
    QCOMPARE(liste.pos(), editeur->parentWidget()->mapToGlobal(editeur->geometry().bottomLeft()));
    QVERIFY(liste.width() >= editeur->width());
    QVERIFY(liste.width() <= maListe->PreteVue()->width());
}

void tst_WidgetListeEditableAvecListeChoix::fenetreDeplacee()
{
    QLineEdit const * const editeur = maListe->Ouvre(0, 0);
    QPoint const avant = maListe->PreteListeChoix()->pos();
    maListe->move(maListe->pos() + QPoint(40, 30));
    QTRY_VERIFY(maListe->PreteListeChoix()->pos() != avant);
    QTRY_COMPARE(maListe->PreteListeChoix()->pos(),
                 editeur->parentWidget()->mapToGlobal(editeur->geometry().bottomLeft()));
}

void tst_WidgetListeEditableAvecListeChoix::defilement()
{
    QStringList mots;
    for (int i = 0; i < 100; ++i)
        mots.append(u"mot"_s);
    maListe->Remplis(mots);
    QCoreApplication::processEvents();
    QLineEdit const * const editeur = maListe->Ouvre(2, 0);
    QTest::keyClicks(maListe->Editeurs().first(), u"ar"_s);
    QPoint const avant = maListe->PreteListeChoix()->pos();
    QScrollBar & barre = *maListe->PreteVue()->verticalScrollBar();
    barre.setValue(barre.value() + 1);
    QTRY_VERIFY(maListe->PreteListeChoix()->pos() != avant);
    QCOMPARE(maListe->PreteListeChoix()->pos(),
             editeur->parentWidget()->mapToGlobal(editeur->geometry().bottomLeft()));
    barre.setValue(barre.maximum());
    QTRY_VERIFY(!maListe->ChoixVisibles());
    QVERIFY(editeur->isVisible());
}

namespace {

// Capitals only.
class Validateur : public QValidator
{
public:
    State validate(QString & texte, int &) const override
    {
        return texte == texte.toUpper() ? Acceptable : Intermediate;
    }
    void fixup(QString & texte) const override { texte = texte.toUpper(); }
};

} // namespace

void tst_WidgetListeEditableAvecListeChoix::validateur()
{
    maListe = std::make_unique<Liste>(2, true, QList<QValidator *>{new Validateur});
    maListe->Remplis({u"A"_s});
    maListe->MetsProposant([](int, QString const & texte) { return Propose(texte); });
    maListe->Montre();
    QLineEdit * const editeur = maListe->Ouvre(0, 0);
    QTest::keyClicks(editeur, u"arb"_s);
    QTest::keyClick(editeur, Qt::Key_Down);
    QTest::keyClick(editeur, Qt::Key_Return);
    QTRY_COMPARE(maListe->Textes().first(), u"ARBRE"_s);
}

void tst_WidgetListeEditableAvecListeChoix::suiteDansLaCelluleSuivante()
{
    maListe->DonneBoutonAjouter()->click();
    QTRY_COMPARE(maListe->Editeurs().size(), 1);
    QTest::keyClicks(maListe->Editeurs().first(), u"ba"_s);
    QTest::keyClick(maListe->Editeurs().first(), Qt::Key_Down);
    mesDemandes.clear();
    QTest::keyClick(maListe->Editeurs().first(), Qt::Key_Return);

    // The next cell is empty: its editor opens with proposals of its own.
    QTRY_COMPARE(maListe->Textes().last(), u"bateau"_s);
    QTRY_VERIFY(!mesDemandes.isEmpty());
    QCOMPARE(mesDemandes.last().first, 1);
    QCOMPARE(mesDemandes.last().second, QString());
    QTRY_COMPARE(maListe->Editeurs().size(), 1);
    QVERIFY(maListe->ChoixVisibles());
    QTest::keyClicks(maListe->Editeurs().first(), u"arc"_s);
    QTest::keyClick(maListe->Editeurs().first(), Qt::Key_Down);
    QTest::keyClick(maListe->Editeurs().first(), Qt::Key_Return);
    QTRY_COMPARE(maListe->Textes(1).last(), u"arc"_s);
}

// By a system that activates whatever it shows.
void tst_WidgetListeEditableAvecListeChoix::listeActivee()
{
    QPointer<QLineEdit> const editeur = maListe->Ouvre(0, 0);
    QTest::keyClicks(editeur, u"ar"_s);
    QApplication::setActiveWindow(maListe->PreteListeChoix());
    QTRY_COMPARE(QApplication::activeWindow(), maListe.get());
    QVERIFY(editeur && editeur->isVisible());
    QTRY_VERIFY(editeur->hasFocus());
    QCOMPARE(editeur->text(), u"ar"_s);
    QVERIFY(maListe->ChoixVisibles());
}

QTEST_MAIN(tst_WidgetListeEditableAvecListeChoix)
#include "tst_WidgetListeEditableAvecListeChoix.moc"
