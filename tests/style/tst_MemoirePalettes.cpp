// tests/style/tst_MemoirePalettes.cpp
#include "style/MemoirePalettes_p.h"

#include <QtTest>

namespace {

constexpr int kRetenues = 8;

constexpr QPalette::ColorGroup kGroupes[] = {QPalette::Active, QPalette::Inactive,
                                             QPalette::Disabled};

// One that shares its key with no other one.
QPalette NouvellePalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::green);
    return palette;
}

qint64 DonneCle(MemoirePalettes & memoire, QPalette const & palette)
{
    return memoire.Donne(palette, QPalette::Button, Qt::red).cacheKey();
}

} // namespace

class tst_MemoirePalettes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void couleurDeTousLesGroupes();
    void groupeCourant();
    void uneSeuleCle();
    void cleSelonLaDemande();
    void cleSelonLaPalette();
    void oublieLaPlusAncienne_data();
    void oublieLaPlusAncienne();
};

void tst_MemoirePalettes::couleurDeTousLesGroupes()
{
    MemoirePalettes memoire;
    QPalette const palette = NouvellePalette();
    for (int tour = 0; tour < 2; ++tour) { // made, and found again
        QPalette const changee = memoire.Donne(palette, QPalette::Button, QColor(1, 2, 3, 4));
        for (auto const groupe : kGroupes) {
            QCOMPARE(changee.color(groupe, QPalette::Button), QColor(1, 2, 3, 4));
            QCOMPARE(changee.color(groupe, QPalette::Window), QColor(Qt::green));
        }
    }
    QVERIFY(palette.color(QPalette::Button) != QColor(1, 2, 3, 4));
}

void tst_MemoirePalettes::groupeCourant()
{
    MemoirePalettes memoire;
    QPalette palette = NouvellePalette();
    qint64 const cle = palette.cacheKey();
    for (auto const groupe : {QPalette::Inactive, QPalette::Active, QPalette::Disabled}) {
        palette.setCurrentColorGroup(groupe);
        QCOMPARE(palette.cacheKey(), cle); // which says nothing of the group
        QCOMPARE(memoire.Donne(palette, QPalette::Button, Qt::red).currentColorGroup(), groupe);
    }
}

void tst_MemoirePalettes::uneSeuleCle()
{
    MemoirePalettes memoire;
    QPalette const palette = NouvellePalette();
    QPalette const copie(palette);
    qint64 const cle = DonneCle(memoire, palette);
    QCOMPARE(DonneCle(memoire, palette), cle);
    QCOMPARE(DonneCle(memoire, copie), cle);
    QVERIFY(cle != palette.cacheKey());
}

void tst_MemoirePalettes::cleSelonLaDemande()
{
    MemoirePalettes memoire;
    QPalette const palette = NouvellePalette();
    qint64 const cle = memoire.Donne(palette, QPalette::Button, Qt::red).cacheKey();
    QPalette const autreCouleur = memoire.Donne(palette, QPalette::Button, QColor(255, 0, 0, 254));
    QPalette const autreRole = memoire.Donne(palette, QPalette::ButtonText, Qt::red);
    QVERIFY(autreCouleur.cacheKey() != cle);
    QVERIFY(autreRole.cacheKey() != cle);
    QVERIFY(autreRole.cacheKey() != autreCouleur.cacheKey());
    QCOMPARE(autreCouleur.color(QPalette::Button), QColor(255, 0, 0, 254));
    QCOMPARE(autreRole.color(QPalette::ButtonText), QColor(Qt::red));
    QCOMPARE(autreRole.color(QPalette::Button), palette.color(QPalette::Button));
    QCOMPARE(memoire.Donne(palette, QPalette::Button, Qt::red).cacheKey(), cle);
}

void tst_MemoirePalettes::cleSelonLaPalette()
{
    MemoirePalettes memoire;
    QPalette palette = NouvellePalette();
    qint64 const cle = DonneCle(memoire, palette);
    palette.setColor(QPalette::Window, Qt::blue);
    QPalette const changee = memoire.Donne(palette, QPalette::Button, Qt::red);
    QVERIFY(changee.cacheKey() != cle);
    QCOMPARE(changee.color(QPalette::Window), QColor(Qt::blue));
}

void tst_MemoirePalettes::oublieLaPlusAncienne_data()
{
    QTest::addColumn<int>("autres");
    QTest::addColumn<bool>("retenue");
    QTest::newRow("as many as it keeps") << kRetenues - 1 << true;
    QTest::newRow("one more") << kRetenues << false;
    QTest::newRow("many more") << 5 * kRetenues << false;
}

void tst_MemoirePalettes::oublieLaPlusAncienne()
{
    QFETCH(int, autres);
    QFETCH(bool, retenue);
    MemoirePalettes memoire;
    QPalette const premiere = NouvellePalette();
    qint64 const cle = DonneCle(memoire, premiere);
    QPalette derniere;
    for (int i = 0; i < autres; ++i) {
        derniere = NouvellePalette();
        DonneCle(memoire, derniere);
    }
    qint64 const cleDerniere = DonneCle(memoire, derniere);
    QCOMPARE(DonneCle(memoire, premiere) == cle, retenue);
    QCOMPARE(DonneCle(memoire, derniere), cleDerniere);
}

QTEST_MAIN(tst_MemoirePalettes)
#include "tst_MemoirePalettes.moc"
