// tests/galerie/tst_ChampMots.cpp
#include "ChampMots.h"

#include "MotsFrancais.h"

#include "lists/ListeChoixFlottante.h"
#include "noyau/Traductions.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_ChampMots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void propose_data();
    void propose();
    void proposeEnTapant();
    void choisisAuClavier();
    void retourSansChoix();
    void retourSansListe();
    void choisisALaSouris();
    void demandeLesAutres();
    void echap();
    void suisLaFenetre();
    void quitteLeChamp();
    void apercu();
    void sansMots();

private:
    QStringList DonneProposes() const;
    void Clique(int rangee);

    QTemporaryDir monDossier;
    std::unique_ptr<MotsFrancais> mesMots;
    std::unique_ptr<QWidget> maFenetre;
    ChampMots * monChamp = nullptr;
    QLineEdit * monAutre = nullptr;
};

void tst_ChampMots::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    QString texte = u"été\nétés\nzèbre\n"_s;
    for (char16_t lettre = u'a'; lettre <= u'k'; ++lettre)
        texte += u"mo"_s + QChar(lettre) + u'\n'; // eleven
    for (char16_t lettre = u'a'; lettre <= u'z'; ++lettre)
        texte += u"pa"_s + QChar(lettre) + u"\npe"_s + QChar(lettre) + u'\n';
    QFile fichier(monDossier.filePath(u"mots"_s));
    QVERIFY(fichier.open(QIODevice::WriteOnly));
    fichier.write(texte.toUtf8());
    fichier.close();
    mesMots = std::make_unique<MotsFrancais>(fichier.fileName());

    maFenetre = std::make_unique<QWidget>();
    auto * const disposition = new QVBoxLayout(maFenetre.get());
    monChamp = new ChampMots(*mesMots);
    monAutre = new QLineEdit;
    disposition->addWidget(monChamp);
    disposition->addWidget(monAutre);
    maFenetre->resize(300, 200);
    maFenetre->show();
    QVERIFY(QTest::qWaitForWindowActive(maFenetre.get()));
    monChamp->setFocus();
}

void tst_ChampMots::cleanup()
{
    maFenetre.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QStringList tst_ChampMots::DonneProposes() const
{
    if (!monChamp->PreteListe().isVisible())
        return {};
    QStringList proposes;
    auto const & modele = *monChamp->PreteListe().PreteListeChoix()->model();
    for (int rangee = 0; rangee < modele.rowCount(); ++rangee)
        proposes.append(modele.index(rangee, 0).data().toString());
    return proposes;
}

void tst_ChampMots::Clique(int rangee)
{
    auto & vue = *monChamp->PreteListe().PreteListeChoix();
    QRect const rang = vue.visualRect(vue.model()->index(rangee, 0));
    QTest::mouseClick(vue.viewport(), Qt::LeftButton, {},
                      rang.intersected(vue.viewport()->rect()).center());
}

void tst_ChampMots::propose_data()
{
    QTest::addColumn<QString>("saisie");
    QTest::addColumn<int>("rangees");
    QTest::addColumn<QString>("derniere");
    QTest::newRow("nothing begins so") << u"zz"_s << 0 << QString();
    QTest::newRow("one") << u"z"_s << 1 << u"zèbre"_s;
    QTest::newRow("two, without accents") << u"ete"_s << 2 << u"étés"_s;
    QTest::newRow("eleven") << u"mo"_s << 11 << u"… et 1 autre"_s;
    QTest::newRow("many") << u"p"_s << 11 << u"… et 42 autres"_s;
}

void tst_ChampMots::propose()
{
    QFETCH(QString, saisie);
    QFETCH(int, rangees);
    QFETCH(QString, derniere);

    QTest::keyClicks(monChamp, saisie);

    QCOMPARE(DonneProposes().size(), rangees);
    QCOMPARE(DonneProposes().value(rangees - 1), derniere);
    QVERIFY(monChamp->hasFocus());
    QCOMPARE(monChamp->text(), saisie);
}

void tst_ChampMots::proposeEnTapant()
{
    QTest::keyClicks(monChamp, u"ze"_s);
    QCOMPARE(DonneProposes(), QStringList{u"zèbre"_s});
    QVERIFY(!monChamp->PreteListe().PreteListeChoix()->accessibleName().isEmpty());

    QTest::keyClicks(monChamp, u"z"_s);
    QVERIFY(!monChamp->PreteListe().isVisible());

    QTest::keyClick(monChamp, Qt::Key_Backspace);
    QCOMPARE(DonneProposes(), QStringList{u"zèbre"_s});

    monChamp->setText(u"ete"_s); // by a program: nobody types
    QCOMPARE(DonneProposes(), QStringList{u"zèbre"_s});
}

void tst_ChampMots::choisisAuClavier()
{
    QSignalSpy choix(monChamp, &ChampMots::SignalMotChoisi);
    QTest::keyClicks(monChamp, u"ete"_s);

    QTest::keyClick(monChamp, Qt::Key_Down);
    QTest::keyClick(monChamp, Qt::Key_Down);
    QTest::keyClick(monChamp, Qt::Key_Return);

    QCOMPARE(choix.count(), 1);
    QCOMPARE(choix.first().first().toString(), u"étés"_s);
    QCOMPARE(monChamp->text(), u"étés"_s);
    QVERIFY(!monChamp->PreteListe().isVisible());
    QVERIFY(monChamp->hasFocus());
}

void tst_ChampMots::retourSansChoix()
{
    QSignalSpy choix(monChamp, &ChampMots::SignalMotChoisi);
    QTest::keyClicks(monChamp, u"ete"_s);

    QTest::keyClick(monChamp, Qt::Key_Return);

    QCOMPARE(choix.count(), 1);
    QCOMPARE(monChamp->text(), u"été"_s); // the first one
}

void tst_ChampMots::retourSansListe()
{
    QSignalSpy choix(monChamp, &ChampMots::SignalMotChoisi);
    QTest::keyClick(monChamp, Qt::Key_Return);
    QCOMPARE(choix.count(), 0); // nothing typed

    QTest::keyClicks(monChamp, u"zz"_s);
    QTest::keyClick(monChamp, Qt::Key_Return);

    QCOMPARE(choix.count(), 1);
    QCOMPARE(choix.first().first().toString(), u"zz"_s);
}

void tst_ChampMots::choisisALaSouris()
{
    QSignalSpy choix(monChamp, &ChampMots::SignalMotChoisi);
    QTest::keyClicks(monChamp, u"ete"_s);

    Clique(1);

    QCOMPARE(choix.count(), 1);
    QCOMPARE(monChamp->text(), u"étés"_s);
    QVERIFY(!monChamp->PreteListe().isVisible());
}

void tst_ChampMots::demandeLesAutres()
{
    QSignalSpy choix(monChamp, &ChampMots::SignalMotChoisi);
    QTest::keyClicks(monChamp, u"p"_s);

    Clique(10);

    QCOMPARE(choix.count(), 0);
    QCOMPARE(monChamp->text(), u"p"_s);
    QCOMPARE(DonneProposes().size(), 31);
    QCOMPARE(DonneProposes().constLast(), u"… et 22 autres"_s);
}

void tst_ChampMots::echap()
{
    QTest::keyClicks(monChamp, u"ete"_s);
    QVERIFY(monChamp->PreteListe().isVisible());

    QTest::keyClick(monChamp, Qt::Key_Escape);

    QVERIFY(!monChamp->PreteListe().isVisible());
    QCOMPARE(monChamp->text(), u"ete"_s);
}

void tst_ChampMots::suisLaFenetre()
{
    QTest::keyClicks(monChamp, u"ete"_s);
    auto const & liste = monChamp->PreteListe();
    QPoint const avant = liste.pos();

    maFenetre->move(maFenetre->pos() + QPoint(40, 30));

    QTRY_COMPARE(liste.pos(), avant + QPoint(40, 30));
    QCOMPARE(liste.pos(), maFenetre->mapToGlobal(monChamp->geometry().bottomLeft()));
    QCOMPARE(liste.width(), monChamp->width());

    int const hauteur = monChamp->y();
    maFenetre->resize(maFenetre->width(), 2 * maFenetre->height()); // spreads the fields
    QTRY_VERIFY(monChamp->y() > hauteur);
    QTRY_COMPARE(liste.pos(), maFenetre->mapToGlobal(monChamp->geometry().bottomLeft()));
}

void tst_ChampMots::quitteLeChamp()
{
    QTest::keyClicks(monChamp, u"ete"_s);
    QVERIFY(monChamp->PreteListe().isVisible());

    monAutre->setFocus();

    QVERIFY(!monChamp->PreteListe().isVisible());
}

void tst_ChampMots::apercu()
{
    auto & liste = monChamp->PreteListe();
    liste.winId(); // makes the window of the system
    QSignalSpy visible(liste.windowHandle(), &QWindow::visibleChanged);

    monChamp->PreparePourApercu(u"mo"_s);

    QVERIFY(!liste.isVisible());
    QCOMPARE(visible.count(), 0); // nothing flashes on the screen
    QCOMPARE(liste.PreteListeChoix()->model()->rowCount(), 11);
    QVERIFY(liste.height() > 11 * maFenetre->fontMetrics().height());
    QCOMPARE(monChamp->text(), QString());
    QVERIFY(!liste.testAttribute(Qt::WA_DontShowOnScreen));

    QTest::keyClicks(monChamp, u"z"_s);
    QCOMPARE(DonneProposes(), QStringList{u"zèbre"_s});
    monChamp->PreparePourApercu(u"mo"_s); // not while it is open
    QCOMPARE(DonneProposes(), QStringList{u"zèbre"_s});
}

void tst_ChampMots::sansMots()
{
    mesMots->MetsFichier(monDossier.filePath(u"absent"_s));

    QTest::keyClicks(monChamp, u"ete"_s);

    QVERIFY(!monChamp->PreteListe().isVisible());
    QCOMPARE(monChamp->text(), u"ete"_s);
}

QTEST_MAIN(tst_ChampMots)
#include "tst_ChampMots.moc"
