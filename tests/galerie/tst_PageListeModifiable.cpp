#include "PageListeModifiable.h"

#include "TraceSignaux.h"

#include "galerie/EssaisPageListe.h"

#include "lists/WidgetListeEditableCochable.h"

using namespace Qt::StringLiterals;

class tst_PageListeModifiable : public QObject, private EssaisPageListe
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void icones();
    void ajoutAuClavier();
    void toutAuClavier();
    void ligneLaisseeVide();
    void invites();
    void initialeCorrigee();
    void monterEtDescendre();
    void tri();
    void nonModifiable();
    void menu();
    void messageSiVide();
    void trace();
    void ordreDesTabulations();
    void nomsAccessibles();

private:
    void ClicDroit(int rangee);
};

void tst_PageListeModifiable::init()
{
    Prepare();
}

void tst_PageListeModifiable::cleanup()
{
    maPage.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_PageListeModifiable::icones()
{
    for (QString const & nom : {u"plus"_s, u"moins"_s}) {
        QImage const simple(u":/Images/%1.png"_s.arg(nom));
        QImage const doubley(u":/Images/%1@2x.png"_s.arg(nom));
        QCOMPARE(simple.size(), QSize(11, 11));
        QCOMPARE(doubley.size(), QSize(22, 22));
        QVERIFY(qAlpha(simple.pixel(5, 5)) > 200);
        QCOMPARE(qAlpha(simple.pixel(0, 0)), 0);
    }
    QVERIFY(!Glossaire().DonneBoutonAjouter()->icon().isNull());
    QVERIFY(!Prete<QToolButton>(u"monter"_s).icon().isNull());
}

void tst_PageListeModifiable::ajoutAuClavier()
{
    WidgetListeEditable & liste = Glossaire();
    int const avant = liste.DonneNbRangee();

    liste.DonneBoutonAjouter()->click();
    for (QString const & texte : {u"Lexique"_s, u"lexicon"_s, u"n. m."_s}) {
        QTRY_VERIFY(Editeur(liste) && Editeur(liste)->text().isEmpty());
        QTest::keyClicks(Editeur(liste), texte);
        QTest::keyClick(Editeur(liste), Qt::Key_Return);
    }

    QTRY_VERIFY(!Editeur(liste));
    QCOMPARE(liste.DonneNbRangee(), avant + 1);
    QCOMPARE(Textes(liste, 0).last(), u"Lexique"_s);
    QCOMPARE(Textes(liste, 1).last(), u"lexicon"_s);
    QCOMPARE(Textes(liste, 2).last(), u"n. m."_s);
}

// From one list to the next without the mouse; the keys go wherever the focus is.
void tst_PageListeModifiable::toutAuClavier()
{
    WidgetListeEditable & liste = Glossaire();
    QStringList attendu = Textes(liste);
    auto const frappe = [](int touche) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(touche));
    };
    Vue(liste).setFocus();
    frappe(Qt::Key_Home);
    frappe(Qt::Key_F2);
    QVERIFY(Editeur(liste));
    QTest::keyClicks(Editeur(liste), u"zone"_s);
    frappe(Qt::Key_Return);
    attendu[0] = u"Zone"_s;
    QTRY_COMPARE(Textes(liste), attendu);
    QTRY_COMPARE(QApplication::focusWidget(), &Vue(liste));

    frappe(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), liste.DonneBoutonAjouter());
    frappe(Qt::Key_Space);
    QTRY_VERIFY(Editeur(liste));
    QTest::keyClicks(Editeur(liste), u"Bandeau"_s);
    frappe(Qt::Key_Return);
    attendu.append(u"Bandeau"_s);
    QTRY_COMPARE(Textes(liste), attendu);
    QTRY_VERIFY(Editeur(liste) && Editeur(liste)->text().isEmpty()); // the next cell
    frappe(Qt::Key_Escape);
    QTRY_COMPARE(QApplication::focusWidget(), &Vue(liste));
    QCOMPARE(Textes(liste), attendu);

    frappe(Qt::Key_End);
    frappe(Qt::Key_Delete);
    attendu.removeLast();
    QCOMPARE(Textes(liste), attendu);
}

void tst_PageListeModifiable::ligneLaisseeVide()
{
    WidgetListeEditable & liste = Glossaire();
    int const avant = liste.DonneNbRangee();
    liste.DonneBoutonAjouter()->click();
    QTRY_VERIFY(Editeur(liste));
    QTest::keyPress(Editeur(liste), Qt::Key_Escape);
    QTest::keyRelease(&Vue(liste), Qt::Key_Escape);
    QTRY_COMPARE(liste.DonneNbRangee(), avant);
}

void tst_PageListeModifiable::invites()
{
    // Also where the edit moves on by itself.
    WidgetListeEditable & liste = Glossaire();
    liste.DonneBoutonAjouter()->click();
    for (QString const & invite : {u"Terme"_s, u"Traduction"_s, u"Genre"_s}) {
        QTRY_VERIFY(Editeur(liste) && Editeur(liste)->placeholderText() == invite);
        QTest::keyClicks(Editeur(liste), u"X"_s);
        QTest::keyClick(Editeur(liste), Qt::Key_Return);
    }
    QTRY_VERIFY(!Editeur(liste));
}

void tst_PageListeModifiable::initialeCorrigee()
{
    WidgetListeEditable & liste = Glossaire();
    liste.MetsElement(Vue(liste).model()->index(0, 0), u"écran tactile"_s);
    QTRY_COMPARE(Textes(liste).first(), u"Écran tactile"_s);
    liste.MetsElement(Vue(liste).model()->index(0, 1), u"touch screen"_s);
    QCoreApplication::processEvents();
    QCOMPARE(Textes(liste, 1).first(), u"touch screen"_s);
}

void tst_PageListeModifiable::monterEtDescendre()
{
    WidgetListeEditable & liste = Glossaire();
    auto & monter = Prete<QToolButton>(u"monter"_s);
    auto & descendre = Prete<QToolButton>(u"descendre"_s);
    QStringList const avant = Textes(liste);
    QVERIFY(!monter.isEnabled() && !descendre.isEnabled());

    Choisis(liste, 1);
    QVERIFY(monter.isEnabled() && descendre.isEnabled());
    monter.click();
    QCOMPARE(Textes(liste).first(), avant.at(1));
    QVERIFY(monter.isEnabled());
    descendre.click();
    QCOMPARE(Textes(liste), avant);
    liste.VideSelection();
    QVERIFY(!monter.isEnabled() && !descendre.isEnabled());
}

void tst_PageListeModifiable::tri()
{
    WidgetListeEditable & liste = Glossaire();
    QStringList const avant = Textes(liste);
    QStringList trie = avant;
    trie.sort();
    QVERIFY(trie != avant);
    QHeaderView & entete = *liste.DonneEntete();
    QVERIFY(!entete.isHidden());
    QPoint const milieu(entete.sectionViewportPosition(0) + entete.sectionSize(0) / 2,
                        entete.height() / 2);

    QTest::mouseClick(entete.viewport(), Qt::LeftButton, {}, milieu);
    QCOMPARE(Textes(liste), avant);
    Prete<QCheckBox>(u"tri"_s).setChecked(true);
    liste.Trier(0, Qt::AscendingOrder);
    QCOMPARE(Textes(liste), trie);
    QTest::mouseClick(entete.viewport(), Qt::LeftButton, {}, milieu);
    std::reverse(trie.begin(), trie.end());
    QCOMPARE(Textes(liste), trie);
}

void tst_PageListeModifiable::nonModifiable()
{
    WidgetListeEditable & liste = Glossaire();
    Choisis(liste, 0);
    Prete<QCheckBox>(u"modifiable"_s).setChecked(false);
    QVERIFY(!liste.isEnabled());
    QVERIFY(!Prete<QToolButton>(u"monter"_s).isEnabled());
    Prete<QCheckBox>(u"modifiable"_s).setChecked(true);
    QVERIFY(liste.isEnabled());
}

void tst_PageListeModifiable::ClicDroit(int rangee)
{
    DTreeView & vue = Vue(Glossaire());
    QPoint const milieu = vue.visualRect(vue.model()->index(rangee, 0)).center();
    QTest::mouseClick(vue.viewport(), Qt::RightButton, {}, milieu);
    QContextMenuEvent evenement(QContextMenuEvent::Mouse, milieu,
                                vue.viewport()->mapToGlobal(milieu));
    QCoreApplication::sendEvent(vue.viewport(), &evenement);
}

void tst_PageListeModifiable::menu()
{
    WidgetListeEditable & liste = Glossaire();
    QStringList const avant = Textes(liste);
    int const choix[] = {0, 1, 2}; // copy, duplicate, remove
    for (int const rang : choix) {
        ClicDroit(1);
        QTRY_VERIFY(maPage->findChild<QMenu *>(u"menuGlossaire"_s));
        QPointer<QMenu> const ouvert = maPage->findChild<QMenu *>(u"menuGlossaire"_s);
        QCOMPARE(ouvert->actions().size(), 3);
        ouvert->actions().at(rang)->trigger();
        ouvert->close();
        QTRY_VERIFY(!ouvert);
    }
    QStringList const ligne = QApplication::clipboard()->text().split(u'\t');
    QCOMPARE(ligne.size(), 3);
    QCOMPARE(ligne.first(), avant.at(1));
    QStringList attendu = avant;
    attendu.append(avant.at(1));
    attendu.removeAt(1);
    QCOMPARE(Textes(liste), attendu);
    QCOMPARE(Textes(liste, 1).last(), ligne.at(1));
}

void tst_PageListeModifiable::messageSiVide()
{
    WidgetListeEditable & liste = Glossaire();
    QImage const plein = Vue(liste).viewport()->grab().toImage();
    Vue(liste).selectAll();
    liste.DonneBoutonRetirer()->click();
    QCOMPARE(liste.DonneNbRangee(), 0);
    QImage const vide = Vue(liste).viewport()->grab().toImage();
    QVERIFY(vide != plein);
    Vue(liste).AfficheMessageSiVide({});
    QVERIFY(Vue(liste).viewport()->grab().toImage() != vide);
}

void tst_PageListeModifiable::trace()
{
    auto & trace = *maPage->findChild<TraceSignaux *>();
    QVERIFY(trace.toPlainText().isEmpty()); // nothing of the examples
    Prete<WidgetListeEditableCochable>(u"taches"_s).MetsCochay(1, true);
    QVERIFY(trace.toPlainText().contains(u"SignalCocheModifiay("_s));
    QVERIFY(trace.toPlainText().contains(u"SignalElementsModifiay()"_s));
    Prete<QPushButton>(u"effacer"_s).click();
    QVERIFY(trace.toPlainText().isEmpty());
}

void tst_PageListeModifiable::ordreDesTabulations()
{
    // Each list, then its own buttons, and all parts in the order of reading.
    QWidgetList const attendus = {&Vue(Glossaire()),
                                  &Prete<QCheckBox>(u"tri"_s),
                                  &Prete<QCheckBox>(u"modifiable"_s),
                                  maPage->findChild<TraceSignaux *>(),
                                  &Vue(Prete<WidgetListeEditable>(u"taches"_s)),
                                  &Vue(Prete<WidgetListeEditable>(u"etapes"_s)),
                                  &Vue(Prete<WidgetListeEditable>(u"mots"_s))};
    QWidgetList rencontres;
    QWidget * widget = maPage.get();
    do {
        widget = widget->nextInFocusChain();
        if (attendus.contains(widget))
            rencontres.append(widget);
    } while (widget != maPage.get());
    QCOMPARE(rencontres, attendus);
}

void tst_PageListeModifiable::nomsAccessibles()
{
    QSet<QString> noms;
    for (WidgetListeEditable const * const liste : maPage->findChildren<WidgetListeEditable *>()) {
        QVERIFY2(!liste->accessibleName().isEmpty(), qPrintable(liste->objectName()));
        noms.insert(liste->accessibleName());
    }
    QCOMPARE(noms.size(), 4);
    for (QToolButton const * const bouton : maPage->findChildren<QToolButton *>())
        QVERIFY(!bouton->accessibleName().isEmpty());
}

QTEST_MAIN(tst_PageListeModifiable)
#include "tst_PageListeModifiable.moc"
