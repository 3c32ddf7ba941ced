// tests/galerie/tst_PageRecherche.cpp
#include "BancPageRecherche.h"

class tst_PageRecherche : public QObject, private BancPageRecherche
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Prepare(); }
    void cleanup() { Range(); }

    void demonstration();
    void apercuTantQueRienNEstTapay();
    void demonstrationSansTexte();
    void premierDesMotsAussiFrequents();
    void focusLaissay();
    void boutons();
    void motChoisi();
    void echapDansUnDialogue();
    void tabulation();
    void texteGarday();
    void barreFermeeGardee();
    void saisieCherchee();
    void effacer();
    void champsNommes();
};

void tst_PageRecherche::demonstration()
{
    Montre();

    auto & barre = Prete<BarreRecherche>();
    QVERIFY(barre.isVisible());
    QCOMPARE(PreteChamp(barre).text(), u"chien"_s); // the long word that comes most often
    QCOMPARE(DonneCompteur(), u"1/3"_s);
    QCOMPARE(Prete<QPlainTextEdit>().textCursor().selectedText(), u"chien"_s);
    QVERIFY(!Prete<QPlainTextEdit>().extraSelections().isEmpty());
    QVERIFY(Prete<ApercuFenetre>().isVisible());
    QVERIFY(Prete<ApercuFenetre>().height() > 2 * maPage->fontMetrics().height()); // both words
    QVERIFY(!Prete<ChampMots>().PreteListe().isVisible());
}

void tst_PageRecherche::apercuTantQueRienNEstTapay()
{
    Montre();
    QTRY_VERIFY(Prete<ApercuFenetre>().isVisible());

    QTest::keyClicks(&Prete<ChampMots>(), u"s"_s);

    QVERIFY(!Prete<ApercuFenetre>().isVisible());
    for (auto const * const legende : maPage->findChildren<QLabel *>())
        QVERIFY(legende->isHidden() || legende->text() != u"Ce qui s’ouvre"_s);
}

void tst_PageRecherche::demonstrationSansTexte()
{
    maPage.reset();
    PageRecherche::PreteMemoire().texte = QString();
    maPage = std::make_unique<PageRecherche>();
    Montre();

    QVERIFY(Prete<BarreRecherche>().isVisible());
    QVERIFY(!PreteChamp(Prete<BarreRecherche>()).property("introuvable").toBool());
    QVERIFY(!MontreMessage());
}

void tst_PageRecherche::premierDesMotsAussiFrequents()
{
    maPage.reset();
    PageRecherche::PreteMemoire().texte = u"Un loup, un chat : le loup et le chat."_s;
    maPage = std::make_unique<PageRecherche>();
    Montre();

    QCOMPARE(PreteChamp(Prete<BarreRecherche>()).text(), u"loup"_s);
}

void tst_PageRecherche::focusLaissay()
{
    maPage->resize(900, 700);
    Prete<QPushButton>(u"ouvrir"_s).setFocus();
    Montre();

    QVERIFY(Prete<BarreRecherche>().isVisible());
    QVERIFY(Prete<QPushButton>(u"ouvrir"_s).hasFocus());
}

void tst_PageRecherche::boutons()
{
    Montre();
    auto & barre = Prete<BarreRecherche>();

    Appuie(u"dialogue"_s);
    QVERIFY(Prete<DialogueRechercher>().isVisible());
    QVERIFY(barre.isHidden());

    Appuie(u"barre"_s);
    QVERIFY(barre.isVisible());

    Prete<QCheckBox>(u"editeurRiche"_s).click();
    QVERIFY(!Prete<QPlainTextEdit>().isVisible());
}

void tst_PageRecherche::motChoisi()
{
    Montre();
    auto & mot = Prete<ChampMots>();
    mot.setFocus();
    mot.clear();
    QTest::keyClicks(&mot, u"etes"_s);
    QVERIFY(mot.PreteListe().isVisible());

    QTest::keyClick(&mot, Qt::Key_Return);

    QCOMPARE(mot.text(), u"étés"_s);
    QCOMPARE(PreteChamp(Prete<BarreRecherche>()).text(), u"étés"_s);
    QVERIFY(DonneTrace().constLast().startsWith(u"CallbackChercher(\"étés\""));
}

void tst_PageRecherche::echapDansUnDialogue()
{
    Montre();
    Appuie(u"dansUnDialogue"_s);
    QPointer<QDialog> const dialogue = &Prete<QDialog>(u"dialogueAvecBarre"_s);
    QVERIFY(QTest::qWaitForWindowActive(dialogue));
    auto & barre = *dialogue->findChild<BarreRecherche *>();
    QVERIFY(barre.isVisible());
    QTRY_VERIFY(PreteChamp(barre).hasFocus()); // activations of windows come late

    QTest::keyClick(&PreteChamp(barre), Qt::Key_Escape);
    QVERIFY(barre.isHidden());
    QVERIFY(dialogue->isVisible());

    QTest::keyClick(dialogue->focusWidget(), Qt::Key_Escape);
    QTRY_VERIFY(dialogue.isNull());
}

// Each in turn by the key, as they stand on the page; the editors let it through.
void tst_PageRecherche::tabulation()
{
    Montre();
    auto & editeur = Prete<QPlainTextEdit>();
    editeur.setFocus();
    QTest::keyClick(&editeur, Qt::Key_Tab);
    auto const & barre = Prete<BarreRecherche>();
    QVERIFY(barre.isAncestorOf(maPage->focusWidget()));
    for (int i = 0; i < 20 && barre.isAncestorOf(maPage->focusWidget()); ++i)
        QTest::keyClick(maPage->focusWidget(), Qt::Key_Tab);
    QCOMPARE(maPage->focusWidget(), &Prete<ChampMots>());

    Appuie(u"dansUnDialogue"_s);
    auto & dialogue = Prete<QDialog>(u"dialogueAvecBarre"_s);
    QVERIFY(QTest::qWaitForWindowActive(&dialogue));
    auto & autre = *dialogue.findChild<QPlainTextEdit *>();
    autre.setFocus();
    QTest::keyClick(&autre, Qt::Key_Tab);
    QVERIFY(dialogue.findChild<BarreRecherche *>()->isAncestorOf(dialogue.focusWidget()));
    QCOMPARE(autre.toPlainText(), editeur.toPlainText());
}

void tst_PageRecherche::texteGarday()
{
    Montre();
    Prete<QPlainTextEdit>().textCursor().insertText(u"loup"_s);

    maPage.reset();
    maPage = std::make_unique<PageRecherche>();

    QCOMPARE(Prete<QPlainTextEdit>().document()->toRawText(),
             QString(kTexte)
                 .replace(u"Un chien\u00A0"_s, u"Un loup\u00A0"_s)
                 .replace(u'\n', QChar::ParagraphSeparator));
}

void tst_PageRecherche::barreFermeeGardee()
{
    Montre();
    Prete<BarreRecherche>().PriseBoutonFermer();

    maPage.reset();
    maPage = std::make_unique<PageRecherche>();
    Montre();

    QVERIFY(Prete<BarreRecherche>().isHidden());
    QTRY_VERIFY(Prete<ApercuFenetre>().isVisible()); // the rest of the demonstration
}

// What was entered on a former page stands in the field before the page is shown.
void tst_PageRecherche::saisieCherchee()
{
    PreteChamp(Prete<BarreRecherche>()).setText(u"chat"_s);
    Montre();

    QCOMPARE(PreteChamp(Prete<BarreRecherche>()).text(), u"chat"_s);
    QCOMPARE(Prete<QPlainTextEdit>().textCursor().selectedText(), u"chat"_s);
}

void tst_PageRecherche::effacer()
{
    Montre();
    QVERIFY(!DonneTrace().isEmpty());

    Appuie(u"effacer"_s);

    QVERIFY(DonneTrace().isEmpty());
}

void tst_PageRecherche::champsNommes()
{
    for (auto const * const champ : maPage->findChildren<QWidget *>()) {
        bool const saisie = qobject_cast<QAbstractScrollArea const *>(champ) ||
                            qobject_cast<QToolButton const *>(champ);
        if (!saisie || !(champ->focusPolicy() & Qt::TabFocus))
            continue;
        auto const * const bouton = qobject_cast<QToolButton const *>(champ);
        QVERIFY2(!champ->accessibleName().isEmpty() || (bouton && !bouton->text().isEmpty()),
                 champ->metaObject()->className());
    }
}

QTEST_MAIN(tst_PageRecherche)
#include "tst_PageRecherche.moc"
