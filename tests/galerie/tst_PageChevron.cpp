#include "PageChevron.h"

#include "ApercuFenetre.h"
#include "OutilDeBande.h"

#include "controls/DBoutonSansFleche.h"
#include "lists/DFrameChevronnable.h"
#include "noyau/Traductions.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_PageChevron : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void iconeDuChevron();
    void toutEntre();
    void bandeEtroite();
    void texteAvantChevron();
    void menuMontre();
    void outilsAgissent();
    void outilSousLeChevron();
    void sousMenu();
    void signauxMontres();

private:
    DFrameChevronnable * PreteBande(int rang) const;
    DBoutonSansFleche * PreteChevron(int rang) const;
    int CompteCaches(int rang) const;
    QAction * PreteAction(QString const & nom) const;
    void MetsLargeur(int pourCent);

    std::unique_ptr<PageChevron> maPage;
};

void tst_PageChevron::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    maPage = std::make_unique<PageChevron>();
    maPage->resize(2000, 700);
    maPage->show();
    QVERIFY(QTest::qWaitForWindowExposed(maPage.get()));
}

void tst_PageChevron::cleanup()
{
    maPage.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// The tools, then the days.
DFrameChevronnable * tst_PageChevron::PreteBande(int rang) const
{
    return maPage->findChildren<DFrameChevronnable *>().at(rang);
}

DBoutonSansFleche * tst_PageChevron::PreteChevron(int rang) const
{
    return PreteBande(rang)->findChild<DBoutonSansFleche *>(QString(), Qt::FindDirectChildrenOnly);
}

int tst_PageChevron::CompteCaches(int rang) const
{
    DFrameChevronnable const & bande = *PreteBande(rang);
    int caches = 0;
    for (int i = 0; i < bande.layout()->count(); ++i)
        caches += bande.PreteWidgetA(i) && !bande.WidgetEstVisible(i);
    return caches;
}

QAction * tst_PageChevron::PreteAction(QString const & nom) const
{
    return maPage->findChild<QAction *>(nom);
}

void tst_PageChevron::MetsLargeur(int pourCent)
{
    maPage->findChild<QSlider *>(u"largeurBande"_s)->setValue(pourCent);
}

void tst_PageChevron::iconeDuChevron()
{
    QVERIFY(QFile::exists(u":/Images/ExpandRightGroup_16x.svg"_s));
    QVERIFY(!PreteChevron(0)->icon().pixmap(16).isNull());
}

void tst_PageChevron::toutEntre()
{
    MetsLargeur(100);

    QTRY_COMPARE(CompteCaches(0), 0);
    QTRY_COMPARE(CompteCaches(1), 0);
    QTRY_COMPARE(PreteChevron(0)->size(), QSize(0, 0));
    // The last tool stands at the right end, behind the spacer.
    DFrameChevronnable const & bande = *PreteBande(0);
    QTRY_COMPARE(bande.PreteWidgetA(bande.layout()->count() - 1)->geometry().right() + 1,
                 bande.width() - 1);
}

void tst_PageChevron::bandeEtroite()
{
    MetsLargeur(4);

    QTRY_VERIFY(CompteCaches(0) > 0);
    QTRY_VERIFY(CompteCaches(1) > 0);
    QTRY_VERIFY(!PreteChevron(1)->size().isEmpty());
    QTRY_VERIFY(PreteBande(0)->width() < 100);
    int const caches = CompteCaches(0);
    QString const compte = u"%1 outils sous le chevron"_s.arg(caches);
    auto const etiquettes = maPage->findChildren<QLabel *>();
    QVERIFY(std::any_of(etiquettes.begin(), etiquettes.end(),
                        [&](QLabel const * etiquette) { return etiquette->text() == compte; }));
}

void tst_PageChevron::texteAvantChevron()
{
    auto * const premier = static_cast<OutilDeBande *>(PreteBande(0)->PreteWidgetA(0));
    auto const largeurDuPremier = [premier] { return premier->width(); };
    int const avecTexte = premier->DonneTailleMin().width();
    MetsLargeur(100);
    QTRY_COMPARE(largeurDuPremier(), avecTexte);
    int const enTout = PreteBande(0)->sizeHint().width();

    // A little less than what the texts need.
    MetsLargeur(100 * (enTout - 30) / PreteBande(0)->parentWidget()->width());

    QTRY_VERIFY(largeurDuPremier() > 0 && largeurDuPremier() < avecTexte);
    QTRY_COMPARE(CompteCaches(0), 0);

    MetsLargeur(100);
    QTRY_COMPARE(largeurDuPremier(), avecTexte);
}

void tst_PageChevron::menuMontre()
{
    auto const * const apercu = maPage->findChild<ApercuFenetre *>();
    MetsLargeur(4);
    QTRY_VERIFY(CompteCaches(0) > 3);
    QTRY_COMPARE(PreteChevron(0)->menu()->actions().size(), CompteCaches(0));
    QTRY_VERIFY(apercu->isVisible());

    MetsLargeur(100);

    QTRY_VERIFY(!apercu->isVisible());
}

void tst_PageChevron::outilsAgissent()
{
    auto const * const texte = maPage->findChild<QTextEdit *>();
    QVERIFY(texte->textCursor().hasSelection());

    PreteAction(u"gras"_s)->trigger();
    PreteAction(u"italique"_s)->trigger();
    PreteAction(u"souligne"_s)->trigger();
    PreteAction(u"casse"_s)->menu()->actions().at(0)->trigger();
    QTextCharFormat const format = texte->textCursor().charFormat();
    QCOMPARE(format.fontWeight(), int(QFont::Bold));
    QVERIFY(format.fontItalic());
    QVERIFY(format.fontUnderline());
    QCOMPARE(format.fontCapitalization(), QFont::AllUppercase);

    PreteAction(u"agrandit"_s)->trigger();
    double const grande = texte->textCursor().charFormat().fontPointSize();
    PreteAction(u"reduit"_s)->trigger();
    QVERIFY(texte->textCursor().charFormat().fontPointSize() < grande);
    PreteAction(u"annule"_s)->trigger();
    QCOMPARE(texte->textCursor().charFormat().fontPointSize(), grande);
    PreteAction(u"annule"_s)->trigger();

    PreteAction(u"annule"_s)->trigger();
    QVERIFY(texte->textCursor().charFormat().fontCapitalization() != QFont::AllUppercase);
    PreteAction(u"retablit"_s)->trigger();
    QCOMPARE(texte->textCursor().charFormat().fontCapitalization(), QFont::AllUppercase);
}

void tst_PageChevron::outilSousLeChevron()
{
    maPage->resize(400, 700);
    MetsLargeur(4);
    QTRY_VERIFY(!PreteBande(0)->WidgetEstVisible(1));
    PreteBande(0)->MetAJourMenu();
    auto const actions = PreteChevron(0)->menu()->actions();
    auto const gras = std::find_if(actions.begin(), actions.end(), [](QAction const * action) {
        return action->text() == u"Italique";
    });
    QVERIFY(gras != actions.end());
    QVERIFY((*gras)->isCheckable() && !(*gras)->isChecked());

    (*gras)->trigger();

    QTRY_VERIFY(PreteAction(u"italique"_s)->isChecked());
    // What the menu shows the next time.
    std::unique_ptr<QAction> const entree(
        static_cast<OutilDeBande *>(PreteBande(0)->PreteWidgetA(1))->DonneQAction());
    QVERIFY(entree->isChecked());
}

void tst_PageChevron::sousMenu()
{
    auto * const casse = static_cast<OutilDeBande *>(PreteBande(0)->PreteWidgetA(3));
    QVERIFY(!casse->EstUneAction());
    QCOMPARE(casse->DonneTitre(), u"Casse"_s);

    std::unique_ptr<QMenu> const menu(casse->DonneQMenu());

    QCOMPARE(menu->title(), u"Casse"_s);
    QCOMPARE(menu->actions(), PreteAction(u"casse"_s)->menu()->actions());
}

void tst_PageChevron::signauxMontres()
{
    auto const * const trace = maPage->findChild<QPlainTextEdit *>();
    MetsLargeur(100);
    QTRY_VERIFY(trace->toPlainText().contains(u"SignalChangeForme(1)"_s));

    MetsLargeur(4);

    QTRY_VERIFY(trace->toPlainText().contains(u"SignalChangeForme(0)"_s));
}

QTEST_MAIN(tst_PageChevron)
#include "tst_PageChevron.moc"
