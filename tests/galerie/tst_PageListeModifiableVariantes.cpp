#include "PageListeModifiable.h"

#include "galerie/EssaisPageListe.h"
#include "lists/ListeChoixFlottante.h"
#include "lists/WidgetListeEditableAvecListeChoix.h"
#include "lists/WidgetListeEditableCochable.h"
#include "lists/WidgetListeEditableDragAndDrop.h"

#include <QtTest>

using namespace Qt::StringLiterals;

// The smaller lists, and what a new page keeps of all.
class tst_PageListeModifiableVariantes : public QObject, private EssaisPageListe
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void taches();
    void etapes();
    void motsProposes();
    void sansListeDeMots();
    void lesChangementsRestent();
    void lesExemplesSuiventLaLangue();
};

void tst_PageListeModifiableVariantes::init()
{
    Prepare();
}

void tst_PageListeModifiableVariantes::cleanup()
{
    maPage.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_PageListeModifiableVariantes::taches()
{
    auto & liste = Prete<WidgetListeEditableCochable>(u"taches"_s);
    QCOMPARE(liste.DonneRangeesCochay(), std::list<int>{0});
    Choisis(liste, 2);
    QTest::keyClick(&Vue(liste), Qt::Key_Space);
    QCOMPARE(liste.DonneRangeesCochay(), (std::list<int>{0, 2}));
}

void tst_PageListeModifiableVariantes::etapes()
{
    auto & liste = Prete<WidgetListeEditableDragAndDrop>(u"etapes"_s);
    QStringList attendu = Textes(liste);
    attendu.move(0, 1);
    Choisis(liste, 0);
    QTest::keyClick(&Vue(liste), Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(Textes(liste), attendu);
}

void tst_PageListeModifiableVariantes::motsProposes()
{
    auto & liste = Prete<WidgetListeEditableAvecListeChoix>(u"mots"_s);
    QVERIFY(maPage->findChild<QLabel *>(u"messageErreur"_s)->isHidden());
    liste.DonneBoutonAjouter()->click();
    QTRY_VERIFY(Editeur(liste));
    QTest::keyClicks(Editeur(liste), u"ar"_s);
    QTRY_VERIFY(liste.PreteListeChoix()->isVisible());
    QCOMPARE(liste.PreteListeChoix()->PreteListeChoix()->model()->rowCount(), 2);
    QTest::keyClick(Editeur(liste), Qt::Key_Down);
    QTest::keyClick(Editeur(liste), Qt::Key_Return);
    QTRY_COMPARE(Textes(liste).last(), u"arbre"_s);
}

void tst_PageListeModifiableVariantes::sansListeDeMots()
{
    PageRecherche::PreteMemoire().mots.MetsFichier(monDossier.filePath(u"absent"_s));
    Construis();
    auto const & message = Prete<QLabel>(u"messageErreur"_s);
    QVERIFY(!message.isHidden());
    QVERIFY(message.text().contains(u"wfrench"_s));
}

void tst_PageListeModifiableVariantes::lesChangementsRestent()
{
    Glossaire().MetsElement(Vue(Glossaire()).model()->index(0, 0), u"Autre"_s);
    auto & taches = Prete<WidgetListeEditableCochable>(u"taches"_s);
    taches.MetsCochay(0, false);
    taches.MetsCochay(2, true);
    QCoreApplication::processEvents();
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);

    Construis();

    QCOMPARE(Textes(Glossaire()).first(), u"Autre"_s);
    QCOMPARE(Prete<WidgetListeEditableCochable>(u"taches"_s).DonneRangeesCochay(),
             std::list<int>{2});
    QCOMPARE(Textes(Prete<WidgetListeEditable>(u"taches"_s)).last(), u"Envoyer"_s);
}

void tst_PageListeModifiableVariantes::lesExemplesSuiventLaLangue()
{
    QStringList const francais = Textes(Prete<WidgetListeEditable>(u"etapes"_s));
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    Construis();
    QVERIFY(Textes(Prete<WidgetListeEditable>(u"etapes"_s)) != francais);
}

QTEST_MAIN(tst_PageListeModifiableVariantes)
#include "tst_PageListeModifiableVariantes.moc"
