// tests/galerie/tst_RemplacementTout.cpp
#include "RemplacementTout.h"

#include "FenetreRecherche.h"

#include "dialogs/DDialogueProgressionInfinie.h"

#include "noyau/Traductions.h"

#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class tst_RemplacementTout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void enUneTranche_data() { AjouteEditeurs(); }
    void enUneTranche();
    void rien();
    void textes_data();
    void textes();
    void enTranches_data() { AjouteEditeurs(); }
    void enTranches();
    void unPasAnnulable_data() { AjouteEditeurs(); }
    void unPasAnnulable();
    void formats();
    void lectureSeule_data() { AjouteEditeurs(); }
    void lectureSeule();
    void annule_data() { AjouteEditeurs(); }
    void annule();
    void fenetre();
    void fenetreAnnule();
    void fenetreSuitLaSienne();
    void fenetreDUneFenetreCachay();
    void pasDeFenetre();
    void modifiayParUnAutre_data();
    void modifiayParUnAutre();
    void miseEnFormeParUnAutre();
    void autreTexte_data();
    void autreTexte();
    void autreDocument();
    void editeurDetruit();
    void detruit_data();
    void detruit();

private:
    // Enough for the shortest slices to be four.
    static constexpr int kNombre = 4 * RemplacementTout::kRemplacementsParMesure - 1;

    RemplacementTout & Prepare(QString const & texte, QString const & motif,
                               QString const & remplacement, bool riche = true);
    RemplacementTout & PrepareLong(bool riche = true);
    static QString Long(QString const & mot, int remplacees);

    std::unique_ptr<QAbstractScrollArea> monWidget;
    std::unique_ptr<EditeurCherchable> monEditeur;
    std::unique_ptr<RemplacementTout> monRemplacement;
};

void tst_RemplacementTout::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
}

void tst_RemplacementTout::cleanup()
{
    monRemplacement.reset();
    monEditeur.reset();
    monWidget.reset();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

RemplacementTout & tst_RemplacementTout::Prepare(QString const & texte, QString const & motif,
                                                 QString const & remplacement, bool riche)
{
    monEditeur = CreeEditeur(riche, monWidget);
    monEditeur->PreteDocument()->setPlainText(texte);
    OccurrencesTexte const occurrences(texte, QRegularExpression(motif));
    monRemplacement = std::make_unique<RemplacementTout>(*monEditeur, occurrences, remplacement);
    monRemplacement->MetsDureeTranche(0);
    return *monRemplacement;
}

RemplacementTout & tst_RemplacementTout::PrepareLong(bool riche)
{
    return Prepare(Long(u"mot"_s, 0), u"mot"_s, u"remots"_s, riche);
}

QString tst_RemplacementTout::Long(QString const & mot, int remplacees)
{
    return u"remots\n"_s.repeated(remplacees) + (mot + u'\n').repeated(kNombre - remplacees);
}

void tst_RemplacementTout::enUneTranche()
{
    QFETCH(bool, riche);
    RemplacementTout & remplacement = Prepare(u"ab ab\nab"_s, u"ab"_s, u"abab"_s, riche);
    QSignalSpy espion(&remplacement, &RemplacementTout::SignalFini);
    QVERIFY(!remplacement.Demarre());
    QCOMPARE(monEditeur->PreteDocument()->toPlainText(), u"abab abab\nabab"_s);
    QCOMPARE(remplacement.DonneNombreRemplacees(), 3);
    remplacement.PriseAnnuler();
    QCOMPARE(espion.size(), 0);
}

void tst_RemplacementTout::rien()
{
    RemplacementTout & remplacement = Prepare(u"ab"_s, u"x"_s, u"y"_s);
    QVERIFY(!remplacement.Demarre());
    QCOMPARE(remplacement.DonneNombreRemplacees(), 0);
    QVERIFY(!monEditeur->PreteDocument()->isUndoAvailable());
}

void tst_RemplacementTout::textes_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("motif");
    QTest::addColumn<QString>("remplacement");
    QTest::addColumn<QString>("resultat");
    QTest::newRow("longer") << u"a-a-a"_s << u"a"_s << u"bcd"_s << u"bcd-bcd-bcd"_s;
    QTest::newRow("shorter") << u"abc-abc"_s << u"abc"_s << u"x"_s << u"x-x"_s;
    QTest::newRow("empty") << u"ab-ab"_s << u"ab"_s << QString() << u"-"_s;
    QTest::newRow("the whole text away") << u"abab"_s << u"ab"_s << QString() << QString();
    QTest::newRow("has what is searched for") << u"aa"_s << u"a"_s << u"aa"_s << u"aaaa"_s;
    QTest::newRow("the same") << u"ab ab"_s << u"ab"_s << u"ab"_s << u"ab ab"_s;
    QTest::newRow("of several lines") << u"a.a"_s << u"a"_s << u"x\r\ny"_s << u"x\ny.x\ny"_s;
    QTest::newRow("not a back reference") << u"a.a"_s << u"a"_s << u"\\0%1"_s << u"\\0%1.\\0%1"_s;
}

void tst_RemplacementTout::textes()
{
    QFETCH(QString, texte);
    QFETCH(QString, motif);
    QFETCH(QString, remplacement);
    Prepare(texte, motif, remplacement).Demarre();
    QTEST(monEditeur->PreteDocument()->toPlainText(), "resultat");
    monEditeur->PreteDocument()->undo();
    QCOMPARE(monEditeur->PreteDocument()->toPlainText(), texte);
}

// The document is whole after each slice, and the event loop turns in between.
void tst_RemplacementTout::enTranches()
{
    QFETCH(bool, riche);
    RemplacementTout & remplacement = PrepareLong(riche);
    QSignalSpy tranches(monEditeur->PreteDocument(), &QTextDocument::contentsChanged);
    QSignalSpy fini(&remplacement, &RemplacementTout::SignalFini);
    QVERIFY(remplacement.Demarre());
    constexpr int kTranche = RemplacementTout::kRemplacementsParMesure;
    QCOMPARE(tranches.size(), 1);
    QCOMPARE(remplacement.DonneNombreRemplacees(), kTranche);
    QCOMPARE(monEditeur->PreteDocument()->toPlainText(), Long(u"mot"_s, kTranche));
    QTRY_COMPARE(fini.size(), 1);
    QCOMPARE(fini.at(0).at(0).toInt(), kNombre);
    QCOMPARE(tranches.size(), 4);
    QCOMPARE(monEditeur->PreteDocument()->toPlainText(), Long(u"mot"_s, kNombre));
}

void tst_RemplacementTout::unPasAnnulable()
{
    QFETCH(bool, riche);
    RemplacementTout & remplacement = PrepareLong(riche);
    QTextDocument & document = *monEditeur->PreteDocument();
    QTextCursor(&document).insertText(u"avant"_s);
    document.undo();
    document.redo(); // a step of its own before, which must not be joined
    document.undo();
    document.redo();
    QString const original = document.toRawText();
    monRemplacement = std::make_unique<RemplacementTout>(
        *monEditeur, OccurrencesTexte(original, QRegularExpression(u"mot"_s)), u"x"_s);
    QSignalSpy fini(monRemplacement.get(), &RemplacementTout::SignalFini);
    monRemplacement->MetsDureeTranche(0);
    QVERIFY(monRemplacement->Demarre());
    QTRY_COMPARE(fini.size(), 1);
    QString const resultat = document.toRawText();
    document.undo();
    QCOMPARE(document.toRawText(), original);
    document.redo();
    QCOMPARE(document.toRawText(), resultat);
    document.undo();
    document.undo();
    QCOMPARE(document.toPlainText(), Long(u"mot"_s, 0));
    Q_UNUSED(remplacement);
}

void tst_RemplacementTout::formats()
{
    Prepare({}, u"x"_s, u"y"_s);
    QTextDocument & document = *monEditeur->PreteDocument();
    document.setHtml(u"<p>a<b>mot</b>b<i>m</i><b>ot</b></p>"_s);
    monRemplacement = std::make_unique<RemplacementTout>(
        *monEditeur, OccurrencesTexte(document.toRawText(), QRegularExpression(u"mot"_s)), u"xy"_s);
    monRemplacement->Demarre();
    QCOMPARE(document.toPlainText(), u"axybxy"_s);
    QTextCursor curseur(&document);
    auto const format = [&](int position) {
        curseur.setPosition(position + 1); // the format is that of the character before
        return curseur.charFormat();
    };
    QCOMPARE(format(0).fontWeight(), int(QFont::Normal));
    QCOMPARE(format(1).fontWeight(), int(QFont::Bold));
    QCOMPARE(format(2).fontWeight(), int(QFont::Bold));
    QCOMPARE(format(3).fontWeight(), int(QFont::Normal));
    // The first character decides.
    QVERIFY(format(4).fontItalic() && format(5).fontItalic());
    QCOMPARE(format(5).fontWeight(), int(QFont::Normal));
}

void tst_RemplacementTout::lectureSeule()
{
    QFETCH(bool, riche);
    RemplacementTout & remplacement = PrepareLong(riche);
    Qt::TextInteractionFlags const interaction =
        Qt::TextEditorInteraction | Qt::LinksAccessibleByMouse;
    monEditeur->MetsInteraction(interaction);
    QSignalSpy fini(&remplacement, &RemplacementTout::SignalFini);
    QVERIFY(remplacement.Demarre());
    QVERIFY(!monEditeur->DonneInteraction().testFlag(Qt::TextEditable));
    QVERIFY(monEditeur->DonneInteraction().testFlag(Qt::TextSelectableByMouse));
    QTest::keyClicks(monWidget.get(), u"x"_s);
    QTRY_COMPARE(fini.size(), 1);
    QCOMPARE(monEditeur->DonneInteraction(), interaction);
    QCOMPARE(monEditeur->PreteDocument()->toPlainText(), Long(u"mot"_s, kNombre));
}

void tst_RemplacementTout::annule()
{
    QFETCH(bool, riche);
    RemplacementTout & remplacement = PrepareLong(riche);
    QSignalSpy fini(&remplacement, &RemplacementTout::SignalFini);
    QVERIFY(remplacement.Demarre());
    connect(monEditeur->PreteDocument(), &QTextDocument::contentsChanged, &remplacement,
            &RemplacementTout::PriseAnnuler);
    QTRY_COMPARE(fini.size(), 1);
    remplacement.PriseAnnuler();
    int const remplacees = remplacement.DonneNombreRemplacees();
    QCOMPARE(fini.size(), 1);
    QCOMPARE(fini.at(0).at(0).toInt(), remplacees);
    QCOMPARE(remplacees, 2 * RemplacementTout::kRemplacementsParMesure);
    QTextDocument & document = *monEditeur->PreteDocument();
    QCOMPARE(document.toPlainText(), Long(u"mot"_s, remplacees));
    QVERIFY(monEditeur->DonneInteraction().testFlag(Qt::TextEditable));
    QCoreApplication::processEvents();
    QCOMPARE(document.toPlainText(), Long(u"mot"_s, remplacees));
    document.undo();
    QCOMPARE(document.toPlainText(), Long(u"mot"_s, 0));
}

void tst_RemplacementTout::fenetre()
{
    RemplacementTout & remplacement = PrepareLong();
    monWidget->show();
    remplacement.MetsDelaiFenetre(0);
    QStringList textes;
    DDialogueProgressionInfinie * fenetre = nullptr;
    // The window tells of the slice before.
    connect(monEditeur->PreteDocument(), &QTextDocument::contentsChanged, this, [&] {
        fenetre = monWidget->findChild<DDialogueProgressionInfinie *>();
        textes += fenetre == nullptr ? QString() : fenetre->accessibleDescription();
        if (fenetre != nullptr)
            QCOMPARE(fenetre->accessibleName(), u"Remplacement en cours"_s);
    });
    QVERIFY(remplacement.Demarre());
    QTRY_COMPARE(remplacement.DonneNombreRemplacees(), kNombre);
    QVERIFY(fenetre != nullptr);
    QStringList const attendus{QString(), u"32 sur 127"_s, u"64 sur 127"_s, u"96 sur 127"_s};
    QCOMPARE(textes, attendus);
    QTRY_VERIFY(monWidget->findChild<DDialogueProgressionInfinie *>() == nullptr);
}

void tst_RemplacementTout::fenetreAnnule()
{
    RemplacementTout & remplacement = PrepareLong();
    monWidget->show();
    remplacement.MetsDelaiFenetre(0);
    QSignalSpy fini(&remplacement, &RemplacementTout::SignalFini);
    connect(monEditeur->PreteDocument(), &QTextDocument::contentsChanged, this, [this] {
        if (auto const * const bouton = monWidget->findChild<QPushButton *>())
            const_cast<QPushButton *>(bouton)->click();
    });
    QVERIFY(remplacement.Demarre());
    QTRY_COMPARE(fini.size(), 1);
    QVERIFY(remplacement.DonneNombreRemplacees() < kNombre);
    QCOMPARE(monEditeur->PreteDocument()->toPlainText(),
             Long(u"mot"_s, remplacement.DonneNombreRemplacees()));
    QTRY_VERIFY(monWidget->findChild<DDialogueProgressionInfinie *>() == nullptr);
}

void tst_RemplacementTout::fenetreSuitLaSienne()
{
    RemplacementTout & remplacement = PrepareLong();
    monWidget->show();
    remplacement.MetsDelaiFenetre(0);
    QSignalSpy fini(&remplacement, &RemplacementTout::SignalFini);
    QList<bool> visibles;
    connect(monEditeur->PreteDocument(), &QTextDocument::contentsChanged, this, [&] {
        auto const * const fenetre = monWidget->findChild<DDialogueProgressionInfinie *>();
        if (fenetre == nullptr)
            return;
        QCOMPARE(fenetre->windowFlags(), RemplacementTout::kDrapeauxFenetre);
        QCOMPARE(fenetre->parentWidget(), monWidget.get());
        QVERIFY(!fenetre->isModal());
        visibles += fenetre->isVisible();
        monWidget->setVisible(!monWidget->isVisible());
        visibles += fenetre->isVisible();
    });
    QVERIFY(remplacement.Demarre());
    QTRY_COMPARE(fini.size(), 1);
    QCOMPARE(visibles, (QList<bool>{true, false, false, true, true, false}));
    // It goes in the end although it is hidden.
    QTRY_VERIFY(monWidget->findChild<DDialogueProgressionInfinie *>() == nullptr);
}

void tst_RemplacementTout::fenetreDUneFenetreCachay()
{
    RemplacementTout & remplacement = PrepareLong();
    remplacement.MetsDelaiFenetre(0);
    QSignalSpy fini(&remplacement, &RemplacementTout::SignalFini);
    connect(monEditeur->PreteDocument(), &QTextDocument::contentsChanged, this, [this] {
        auto const * const fenetre = monWidget->findChild<DDialogueProgressionInfinie *>();
        QVERIFY(fenetre == nullptr || !fenetre->isVisible());
    });
    QVERIFY(remplacement.Demarre());
    QTRY_COMPARE(fini.size(), 1);
    QTRY_VERIFY(monWidget->findChild<DDialogueProgressionInfinie *>() == nullptr);
}

void tst_RemplacementTout::pasDeFenetre()
{
    RemplacementTout & remplacement = PrepareLong();
    monWidget->show();
    remplacement.MetsDelaiFenetre(60'000);
    QSignalSpy fini(&remplacement, &RemplacementTout::SignalFini);
    QVERIFY(remplacement.Demarre());
    connect(monEditeur->PreteDocument(), &QTextDocument::contentsChanged, this,
            [this] { QVERIFY(monWidget->findChild<DDialogueProgressionInfinie *>() == nullptr); });
    QTRY_COMPARE(fini.size(), 1);
}

void tst_RemplacementTout::modifiayParUnAutre_data()
{
    QTest::addColumn<bool>("annulable");
    QTest::addColumn<bool>("annule");
    QTest::newRow("an edit") << true << false;
    QTest::newRow("an edit where nothing can be undone") << false << false;
    QTest::newRow("undo") << true << true;
}

// The places of the others are no longer known.
void tst_RemplacementTout::modifiayParUnAutre()
{
    QFETCH(bool, annulable);
    QFETCH(bool, annule);
    RemplacementTout & remplacement = PrepareLong();
    QTextDocument & document = *monEditeur->PreteDocument();
    document.setUndoRedoEnabled(annulable);
    QSignalSpy fini(&remplacement, &RemplacementTout::SignalFini);
    QVERIFY(remplacement.Demarre());
    if (annule) {
        document.undo();
    } else {
        QTextCursor curseur(&document);
        curseur.deleteChar();
        curseur.insertText(u"R"_s); // as long as before
    }
    QString const texte = document.toPlainText();
    QTRY_COMPARE(fini.size(), 1);
    QVERIFY(remplacement.DonneNombreRemplacees() < kNombre);
    QCOMPARE(document.toPlainText(), texte);
}

void tst_RemplacementTout::miseEnFormeParUnAutre()
{
    RemplacementTout & remplacement = PrepareLong();
    QTextDocument & document = *monEditeur->PreteDocument();
    QSignalSpy fini(&remplacement, &RemplacementTout::SignalFini);
    QVERIFY(remplacement.Demarre());
    // What a syntax highlighter does.
    QTextCursor curseur(&document);
    curseur.beginEditBlock();
    document.markContentsDirty(0, 10);
    curseur.endEditBlock();
    QTRY_COMPARE(fini.size(), 1);
    QCOMPARE(fini.at(0).at(0).toInt(), kNombre);
}

void tst_RemplacementTout::autreTexte_data()
{
    QTest::addColumn<bool>("annulable");
    QTest::newRow("with undo") << true;
    QTest::newRow("without undo") << false;
}

// As long as the one before.
void tst_RemplacementTout::autreTexte()
{
    QFETCH(bool, annulable);
    RemplacementTout & remplacement = PrepareLong();
    QTextDocument & document = *monEditeur->PreteDocument();
    document.setUndoRedoEnabled(annulable);
    QSignalSpy fini(&remplacement, &RemplacementTout::SignalFini);
    QVERIFY(remplacement.Demarre());
    QString const texte(document.characterCount() - 1, u'x');
    document.setPlainText(texte);
    QTRY_COMPARE(fini.size(), 1);
    QCOMPARE(fini.at(0).at(0).toInt(), RemplacementTout::kRemplacementsParMesure);
    QCOMPARE(document.toPlainText(), texte);
    QVERIFY(monEditeur->DonneInteraction().testFlag(Qt::TextEditable));
}

void tst_RemplacementTout::autreDocument()
{
    RemplacementTout & remplacement = PrepareLong();
    QSignalSpy fini(&remplacement, &RemplacementTout::SignalFini);
    QVERIFY(remplacement.Demarre());
    QTextDocument autre(u"mot mot"_s);
    static_cast<QTextEdit &>(*monWidget).setDocument(&autre); // the first one dies
    QTRY_COMPARE(fini.size(), 1);
    QCOMPARE(autre.toPlainText(), u"mot mot"_s);
    monRemplacement.reset();
    monWidget.reset();
}

void tst_RemplacementTout::editeurDetruit()
{
    RemplacementTout & remplacement = PrepareLong();
    monWidget->show();
    remplacement.MetsDelaiFenetre(0);
    connect(monEditeur->PreteDocument(), &QTextDocument::contentsChanged, this, [this] {
        // Before the next slice.
        if (monWidget->findChild<DDialogueProgressionInfinie *>() != nullptr)
            monWidget.release()->deleteLater();
    });
    QSignalSpy fini(&remplacement, &RemplacementTout::SignalFini);
    QVERIFY(remplacement.Demarre());
    QTRY_COMPARE(fini.size(), 1);
    QVERIFY(monWidget == nullptr);
    QVERIFY(remplacement.DonneNombreRemplacees() < kNombre);
}

void tst_RemplacementTout::detruit_data()
{
    QTest::addColumn<bool>("pendantLaTranche");
    QTest::newRow("between two slices") << false;
    QTest::newRow("by who hears of a change") << true;
}

void tst_RemplacementTout::detruit()
{
    QFETCH(bool, pendantLaTranche);
    RemplacementTout & remplacement = PrepareLong();
    if (pendantLaTranche) {
        connect(monEditeur->PreteDocument(), &QTextDocument::contentsChanged, this,
                [this] { monRemplacement.reset(); });
        QVERIFY(!remplacement.Demarre());
    } else {
        QVERIFY(remplacement.Demarre());
        monRemplacement.reset();
    }
    QVERIFY(monEditeur->DonneInteraction().testFlag(Qt::TextEditable));
    QTextDocument & document = *monEditeur->PreteDocument();
    QString const texte = document.toPlainText();
    QCoreApplication::processEvents();
    QCOMPARE(document.toPlainText(), texte);
    document.disconnect(this);
    document.undo();
    QCOMPARE(document.toPlainText(), Long(u"mot"_s, 0));
}

QTEST_MAIN(tst_RemplacementTout)
#include "tst_RemplacementTout.moc"
