// tests/galerie/tst_TexteCherchable.cpp
#include "TexteCherchable.h"

#include "TraceSignaux.h"

#include "noyau/Traductions.h"
#include "search/BarreRecherche.h"
#include "search/DialogueRechercher.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// No-break spaces are part of a French text.
QString const kTexte = u"Un chien\u00A0: deux chiens.\nUn chat\u202F; trois chiens.\n"_s;

} // namespace

class tst_TexteCherchable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void texteEntier_data();
    void texteEntier();
    void unSeulMot();
    void demontre();
    void demontreCeQuiEstSaisi();
    void demontreSansFocus();
    void ouvreBarre_data();
    void ouvreBarre();
    void ferme();
    void introuvable();
    void remplace();
    void ouvreDialogue();
    void unSeulFrontal();
    void dialogueFermeAvecLaPage();
    void editeurRiche();
    void editeurRicheAvecDialogue();
    void focusRenduAuRetour();

private:
    QLineEdit & PreteChamp() const;
    QString DonneCompteur() const;
    QStringList DonneTrace() const;
    QTextEdit * PreteEditeurRiche() const;

    std::unique_ptr<QWidget> maFenetre;
    QLineEdit * monVoisin = nullptr;
    TraceSignaux * maTrace = nullptr;
    TexteCherchable * monTexte = nullptr;
    BarreRecherche * maBarre = nullptr;
    QPlainTextEdit * monEditeur = nullptr;
};

void tst_TexteCherchable::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    maFenetre = std::make_unique<QWidget>();
    auto * const disposition = new QVBoxLayout(maFenetre.get());
    monVoisin = new QLineEdit;
    maTrace = new TraceSignaux(u"Trace"_s);
    monTexte = new TexteCherchable(*maTrace, *maFenetre);
    for (QWidget * const widget :
         {static_cast<QWidget *>(monVoisin), static_cast<QWidget *>(monTexte),
          static_cast<QWidget *>(maTrace)})
        disposition->addWidget(widget);
    maBarre = monTexte->findChild<BarreRecherche *>();
    monEditeur = monTexte->findChild<QPlainTextEdit *>();
    monTexte->MetsTexte(kTexte);
    maFenetre->resize(600, 500);
    maFenetre->show();
    QVERIFY(QTest::qWaitForWindowActive(maFenetre.get()));
    monVoisin->setFocus();
    QVERIFY(monVoisin->hasFocus());
}

void tst_TexteCherchable::cleanup()
{
    maFenetre.reset();
    // The menu of a search bar dies later.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QLineEdit & tst_TexteCherchable::PreteChamp() const
{
    return *maBarre->findChild<QLineEdit *>(u"ChampTexteRecherche"_s);
}

QString tst_TexteCherchable::DonneCompteur() const
{
    return maBarre->findChild<QLabel *>()->text();
}

QStringList tst_TexteCherchable::DonneTrace() const
{
    return maTrace->toPlainText().split(u'\n', Qt::SkipEmptyParts);
}

QTextEdit * tst_TexteCherchable::PreteEditeurRiche() const
{
    return monTexte->findChild<QTextEdit *>();
}

void tst_TexteCherchable::texteEntier_data()
{
    QTest::addColumn<bool>("riche");
    QTest::newRow("plain editor") << false;
    QTest::newRow("rich editor") << true;
}

void tst_TexteCherchable::texteEntier()
{
    QFETCH(bool, riche);
    monTexte->MetsRiche(riche);
    QCOMPARE(monTexte->DonneTexte(), kTexte);

    monTexte->MetsTexte(u"Autre\u00A0!\n\nfin"_s);

    QCOMPARE(monTexte->DonneTexte(), u"Autre\u00A0!\n\nfin"_s);
}

// A word longer than the window stays on one line.
void tst_TexteCherchable::unSeulMot()
{
    monTexte->MetsTexte(QString(2000, u'm'));

    QCOMPARE(monEditeur->document()->firstBlock().layout()->lineCount(), 1);
    QCOMPARE(PreteEditeurRiche()->wordWrapMode(), QTextOption::WordWrap);
}

void tst_TexteCherchable::demontre()
{
    QVERIFY(!monTexte->BarreEstOuverte());

    monTexte->OuvreRemplacement();
    monTexte->Demontre(u"chien"_s);

    QVERIFY(monTexte->BarreEstOuverte());
    QCOMPARE(PreteChamp().text(), u"chien"_s);
    QCOMPARE(DonneCompteur(), u"1/3"_s);
    QCOMPARE(monEditeur->textCursor().selectedText(), u"chien"_s);
    QVERIFY(monVoisin->hasFocus());
    for (auto const * const champ : maBarre->findChildren<QLineEdit *>())
        QVERIFY(champ->isVisible()); // both rows
    monTexte->OuvreRemplacement();   // it is open: it stays so
    QVERIFY(maBarre->findChildren<QLineEdit *>().constLast()->isVisible());
}

void tst_TexteCherchable::demontreCeQuiEstSaisi()
{
    PreteChamp().setText(u"chat"_s);

    monTexte->Demontre(u"chien"_s);

    QCOMPARE(PreteChamp().text(), u"chat"_s);
    QCOMPARE(monEditeur->textCursor().selectedText(), u"chat"_s);
}

void tst_TexteCherchable::demontreSansFocus()
{
    monVoisin->clearFocus();

    monTexte->Demontre(u"chien"_s);

    QVERIFY(!PreteChamp().hasFocus());
}

void tst_TexteCherchable::ouvreBarre_data()
{
    QTest::addColumn<bool>("parTouche");
    QTest::newRow("by the key, from beside the text") << true;
    QTest::newRow("by a call") << false;
}

void tst_TexteCherchable::ouvreBarre()
{
    QFETCH(bool, parTouche);
    monEditeur->setTextCursor(monEditeur->document()->find(u"trois"_s));

    if (parTouche)
        QTest::keySequence(monVoisin, QKeySequence::Find);
    else
        monTexte->OuvreBarre();

    QVERIFY(maBarre->isVisible());
    QVERIFY(PreteChamp().hasFocus());
    QCOMPARE(PreteChamp().text(), u"trois"_s); // what was selected
    QCOMPARE(DonneCompteur(), u"1/1"_s);
}

void tst_TexteCherchable::ferme()
{
    monTexte->Cherche(u"chien"_s);
    maTrace->clear();

    QTest::keyClick(&PreteChamp(), Qt::Key_Escape);

    QVERIFY(!monTexte->BarreEstOuverte());
    QVERIFY(monEditeur->hasFocus());
    QCOMPARE(DonneTrace(), (QStringList{u"BarreRecherche::SignalFermeture()"_s,
                                        u"BarreRecherche::SignalBarreRechercheFermay()"_s}));
}

void tst_TexteCherchable::introuvable()
{
    monTexte->Cherche(u"chien"_s);
    QVERIFY(!PreteChamp().property("introuvable").toBool());

    QTest::keyClicks(&PreteChamp(), u"z"_s); // in the place of what is selected
    QVERIFY(PreteChamp().property("introuvable").toBool());
    QCOMPARE(DonneTrace().constLast(), u"CallbackChercher(\"z\", 0x224, 1)"_s);

    PreteChamp().selectAll();
    QTest::keyClicks(&PreteChamp(), u"chat"_s);
    QVERIFY(!PreteChamp().property("introuvable").toBool());
}

void tst_TexteCherchable::remplace()
{
    monTexte->OuvreRemplacement();
    monTexte->Cherche(u"chien"_s);
    auto * const champ = maBarre->findChildren<QLineEdit *>().constLast();
    QTest::keyClicks(champ, u"chiot"_s);

    QTest::keyClick(champ, Qt::Key_Return);

    QVERIFY(monTexte->DonneTexte().startsWith(u"Un chiot\u00A0: deux chiens"));
    QCOMPARE(DonneTrace().filter(u"CallbackRemplacer(\"chiot\""_s).size(), 1);
}

void tst_TexteCherchable::ouvreDialogue()
{
    monTexte->OuvreDialogue();

    auto & dialogue = *monTexte->findChild<DialogueRechercher *>();
    QVERIFY(dialogue.isVisible());
    QCOMPARE(dialogue.findChildren<QCheckBox *>().size(), 3);
    QCOMPARE(dialogue.findChildren<QRadioButton *>().size(), 4);
    QCOMPARE(dialogue.findChildren<QLineEdit *>().size(), 2);
    dialogue.PrendsChaineRecherche(u"chat"_s);
    dialogue.ChercherSuivant();
    QCOMPARE(monEditeur->textCursor().selectedText(), u"chat"_s);

    monTexte->OuvreDialogue();
    QCOMPARE(monTexte->findChildren<DialogueRechercher *>().size(), 1);
}

void tst_TexteCherchable::unSeulFrontal()
{
    monTexte->OuvreBarre();

    monTexte->OuvreDialogue();
    QVERIFY(maBarre->isHidden());
    QVERIFY(monTexte->findChild<DialogueRechercher *>()->isVisible());

    monTexte->OuvreBarre();
    QVERIFY(maBarre->isVisible());
    QVERIFY(monTexte->findChild<DialogueRechercher *>()->isHidden());
}

void tst_TexteCherchable::dialogueFermeAvecLaPage()
{
    monTexte->OuvreDialogue();
    auto const & dialogue = *monTexte->findChild<DialogueRechercher *>();
    // A window that is minimized takes its dialogs with it and brings them back.
    QSignalSpy ferme(&dialogue, &DialogueRechercher::SignalFermeture);
    maFenetre->showMinimized();
    maFenetre->showNormal();
    QCOMPARE(ferme.count(), 0);

    monTexte->hide(); // for another page of the same window

    QVERIFY(dialogue.isHidden());
}

void tst_TexteCherchable::editeurRiche()
{
    monTexte->Demontre(u"chien"_s);

    monTexte->MetsRiche(true);

    auto * const editeur = PreteEditeurRiche();
    QVERIFY(editeur->isVisible());
    QVERIFY(!monEditeur->isVisible());
    QCOMPARE(editeur->textCursor().selectedText(), u"chien"_s);
    QCOMPARE(DonneCompteur(), u"1/3"_s);
    QVERIFY(monVoisin->hasFocus());

    editeur->textCursor().insertText(u"loup"_s);
    monTexte->MetsRiche(false);

    QVERIFY(monEditeur->isVisible());
    QVERIFY(monTexte->DonneTexte().startsWith(u"Un loup"));
    QTRY_COMPARE(DonneCompteur(), u"1/2"_s);
}

void tst_TexteCherchable::editeurRicheAvecDialogue()
{
    monTexte->OuvreDialogue();
    auto & dialogue = *monTexte->findChild<DialogueRechercher *>();

    monTexte->MetsRiche(true);
    dialogue.PrendsChaineRecherche(u"chat"_s);
    dialogue.ChercherSuivant();

    QCOMPARE(PreteEditeurRiche()->textCursor().selectedText(), u"chat"_s);
    QVERIFY(!monTexte->BarreEstOuverte());
}

// Somebody walks through a list of pages by the arrows.
void tst_TexteCherchable::focusRenduAuRetour()
{
    monTexte->Demontre(u"chien"_s);
    monTexte->hide();

    monTexte->show();

    QVERIFY(maBarre->isVisible());
    QVERIFY(monVoisin->hasFocus());
}

QTEST_MAIN(tst_TexteCherchable)
#include "tst_TexteCherchable.moc"
