#include "navigation/DTabWidget.h"

#include "navigation/EssaisOnglets.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QtTest>

using namespace EssaisOnglets;
using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTaille(600, 300);

// A page whose state can be lost.
class PageVivante : public QWidget
{
public:
    explicit PageVivante(QString const & nom)
        : champ(new QLineEdit(this))
        , editeur(new QPlainTextEdit(this))
    {
        setObjectName(nom);
        auto * const layout = new QVBoxLayout(this);
        layout->addWidget(champ);
        layout->addWidget(editeur);
        QStringList lignes;
        for (int i = 0; i < 500; ++i)
            lignes.append(u"Ligne %1"_s.arg(i));
        editeur->setPlainText(lignes.join(u'\n'));
    }

    // What a person leaves in it.
    void Utilise()
    {
        champ->setText(u"champ"_s);
        champ->setCursorPosition(2);
        QTextCursor curseur(editeur->document());
        curseur.insertText(u"premier "_s);
        curseur.insertBlock();
        curseur.insertText(u"second "_s);
        editeur->undo();
        editeur->verticalScrollBar()->setValue(123);
    }

    QStringList DonneEtat() const
    {
        auto const * const document = editeur->document();
        return {champ->text(),
                QString::number(champ->cursorPosition()),
                champ->isUndoAvailable() ? u"undo"_s : QString(),
                QString::number(editeur->verticalScrollBar()->value()),
                QString::number(document->availableUndoSteps()),
                QString::number(document->availableRedoSteps()),
                QString::number(qHash(editeur->toPlainText()))};
    }

    QLineEdit * champ;
    QPlainTextEdit * editeur;
};

void Montre(DTabWidget & onglets)
{
    onglets.resize(kTaille);
    onglets.show();
    onglets.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&onglets));
}

} // namespace

// Pages keep what they hold, wherever they go; and they are somebody's at all times.
class tst_DTabWidgetPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void etatApresDeplacementDansLaBarre_data();
    void etatApresDeplacementDansLaBarre();
    void etatApresUnAllerEtRetour();
    void focusPendantDeplacementDansLaBarre();
    void jamaisCacheePendantDeplacementDansLaBarre();
    void detruitesAvecLeWidget();
    void retireeDetruiteParLHote();
    void detruiteParLHote_data();
    void detruiteParLHote();
    void priseParUnAutreParent();
    void priseParUnAutreWidget();
    void ajouteeDeuxFois();
};

void tst_DTabWidgetPages::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTabWidgetPages::etatApresDeplacementDansLaBarre_data()
{
    QTest::addColumn<int>("de");
    QTest::addColumn<int>("vers");
    QTest::newRow("the page on show") << 0 << 2;
    QTest::newRow("past the page on show") << 2 << 0;
}

void tst_DTabWidgetPages::etatApresDeplacementDansLaBarre()
{
    QFETCH(int, de);
    QFETCH(int, vers);
    DTabWidget onglets(nullptr, {});
    auto * const page = new PageVivante(u"vivante"_s);
    onglets.AjouteOnglet(page, u"vivante"_s);
    Remplis(onglets, u"b c"_s);
    Montre(onglets);
    page->Utilise();
    QStringList const etat = page->DonneEtat();

    Barre(onglets).moveTab(de, vers);

    QCOMPARE(onglets.DonneWidgetCourant(), page);
    QVERIFY(page->isVisible());
    QCOMPARE(page->DonneEtat(), etat);
}

void tst_DTabWidgetPages::etatApresUnAllerEtRetour()
{
    DTabWidget source(nullptr, u"g"_s);
    DTabWidget cible(nullptr, u"g"_s);
    Remplis(source, u"a"_s);
    Remplis(cible, u"b"_s);
    auto * const page = new PageVivante(u"vivante"_s);
    source.AjouteOnglet(page, u"vivante"_s);
    source.MetsIndexCourant(1);
    Montre(source);
    Montre(cible);
    page->Utilise();
    QStringList const etat = page->DonneEtat();

    QVERIFY(source.EnvoieOnglet(1, &cible, 0));
    QVERIFY(!page->isVisible());
    QCOMPARE(page->DonneEtat(), etat);
    cible.MetsIndexCourant(0);
    QVERIFY(page->isVisible());
    QCOMPARE(page->window(), &cible);
    QCOMPARE(page->DonneEtat(), etat);
    page->champ->setFocus();
    QTRY_VERIFY(page->champ->hasFocus());
    page->editeur->undo();
    page->editeur->redo();

    page->champ->setCursorPosition(2);
    page->editeur->verticalScrollBar()->setValue(123);
    QVERIFY(cible.EnvoieOnglet(0, &source, 1));
    source.MetsIndexCourant(1);
    QVERIFY(page->isVisible());
    QCOMPARE(page->DonneEtat(), etat);
}

void tst_DTabWidgetPages::focusPendantDeplacementDansLaBarre()
{
    DTabWidget onglets(nullptr, {});
    auto * const page = new PageVivante(u"vivante"_s);
    onglets.AjouteOnglet(page, u"vivante"_s);
    Remplis(onglets, u"b c"_s);
    Montre(onglets);
    page->champ->setFocus();
    QTRY_VERIFY(page->champ->hasFocus());
    QSignalSpy const espion(page->champ, &QLineEdit::editingFinished);

    Barre(onglets).moveTab(0, 2);
    QVERIFY(page->champ->hasFocus());
    Barre(onglets).moveTab(0, 1);
    Barre(onglets).moveTab(2, 1);
    QVERIFY(page->champ->hasFocus());
    QCOMPARE(espion.count(), 0);
}

void tst_DTabWidgetPages::jamaisCacheePendantDeplacementDansLaBarre()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    Montre(onglets);

    class Compteur : public QObject
    {
    public:
        using QObject::QObject;
        bool eventFilter(QObject *, QEvent * evenement) override
        {
            nombre += evenement->type() == QEvent::Hide || evenement->type() == QEvent::Show;
            return false;
        }
        int nombre = 0;
    } compteur;
    for (int i = 0; i < 3; ++i)
        onglets.DonneWidget(i)->installEventFilter(&compteur);
    Barre(onglets).moveTab(0, 2);
    Barre(onglets).moveTab(2, 1);
    Barre(onglets).moveTab(2, 0);
    QCOMPARE(compteur.nombre, 0);
}

void tst_DTabWidgetPages::detruitesAvecLeWidget()
{
    QPointer<QWidget> page(Page(u"a"_s));
    QPointer<QWidget> retiree(Page(u"b"_s));
    auto * const onglets = new DTabWidget(nullptr, {});
    onglets->AjouteOnglet(page, {});
    onglets->AjouteOnglet(retiree, {});
    onglets->RetireOnglet(1);
    retiree->setParent(nullptr);
    Journal journal;
    journal.Ecoute(*onglets, u"x"_s);
    delete onglets;
    QVERIFY(!page);
    QVERIFY(retiree);
    delete retiree;
    QVERIFY(journal.lignes.isEmpty());
}

void tst_DTabWidgetPages::retireeDetruiteParLHote()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    QWidget * const page = onglets.DonneWidget(1);
    onglets.RetireOnglet(1);
    delete page;
    QCOMPARE(Titres(onglets), u"a c"_s);
}

void tst_DTabWidgetPages::detruiteParLHote_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("reste");
    QTest::addColumn<QStringList>("signaux");
    QTest::newRow("before the active one") << 0 << u"b c"_s << QStringList{u"x courant 0"_s};
    QTest::newRow("the active one") << 1 << u"a c"_s << QStringList{u"x courant 1"_s};
    QTest::newRow("behind the active one") << 2 << u"a b"_s << QStringList{};
}

void tst_DTabWidgetPages::detruiteParLHote()
{
    QFETCH(int, index);
    QFETCH(QString, reste);
    QFETCH(QStringList, signaux);
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    onglets.MetsIndexCourant(1);
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    delete onglets.DonneWidget(index);
    QCOMPARE(Titres(onglets), reste);
    QCOMPARE(Pile(onglets).currentIndex(), onglets.DonneIndexCourant());
    QVERIFY(journal.lignes.isEmpty()); // a receiver may not meet a page that is half destroyed
    QCoreApplication::processEvents();
    QCOMPARE(journal.lignes, signaux);
}

void tst_DTabWidgetPages::priseParUnAutreParent()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    QWidget fenetre;
    QWidget * const page = onglets.DonneWidget(0);
    page->setParent(&fenetre);
    QCOMPARE(Titres(onglets), u"b"_s);
    onglets.DonneWidget(0)->setParent(&fenetre);
    QCOMPARE(onglets.DonneTotalOnglet(), 0);
    QCOMPARE(onglets.DonneIndexCourant(), -1);
}

void tst_DTabWidgetPages::priseParUnAutreWidget()
{
    DTabWidget source(nullptr, u"g"_s);
    DTabWidget cible(nullptr, u"autre"_s);
    Remplis(source, u"a b c"_s);
    source.MetsIndexCourant(1);
    Journal journal;
    journal.Ecoute(source, u"source"_s);
    journal.Ecoute(cible, u"cible"_s);
    cible.AjouteOnglet(source.DonneWidget(1), u"b"_s);
    QCOMPARE(journal.lignes, (QStringList{u"source courant 1"_s, u"cible courant 0"_s}));
    QCOMPARE(Titres(source), u"a c"_s);
    QCOMPARE(Titres(cible), u"b"_s);
    cible.InsereOnglet(source.DonneWidget(1), 0, u"c"_s);
    QCOMPARE(Titres(source), u"a"_s);
    QCOMPARE(Titres(cible), u"c b"_s);
}

void tst_DTabWidgetPages::ajouteeDeuxFois()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    QWidget * const page = onglets.DonneWidget(0);
    QCOMPARE(onglets.AjouteOnglet(page, u"a"_s), 2);
    QCOMPARE(Titres(onglets), u"b c a"_s);
    onglets.InsereOnglet(page, 0, u"a"_s);
    QCOMPARE(Titres(onglets), u"a b c"_s);
    QCOMPARE(Pile(onglets).count(), 3);
}

QTEST_MAIN(tst_DTabWidgetPages)
#include "tst_DTabWidgetPages.moc"
