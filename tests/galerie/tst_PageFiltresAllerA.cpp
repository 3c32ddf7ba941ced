#include "BancPageFiltres.h"

/// The lower bar's field, which leads to a word.
class tst_PageFiltresAllerA : public QObject, private BancPageFiltres
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Prepare(); }
    void cleanup() { Range(); }

    void allerA();
    void enHaut();
    void motsVisites();
    void visitesLimitees();

private:
    void Visite(QString const & mot);
};

void tst_PageFiltresAllerA::Visite(QString const & mot)
{
    auto & champ = *PreteBarreDOrdre().PreteComboDeRecherche();
    champ.lineEdit()->clear();
    QTest::keyClicks(champ.lineEdit(), mot);
    QTest::keyClick(champ.lineEdit(), Qt::Key_Return);
}

void tst_PageFiltresAllerA::allerA()
{
    Montre();
    auto & champ = *PreteBarreDOrdre().PreteComboDeRecherche();
    QCOMPARE(champ.DonneNombreDeModes(), 0);
    QTest::keyClicks(champ.lineEdit(), u"REF"_s);

    QCOMPARE(Prete<DTableView>().currentIndex().data().toString(), u"refaire"_s);
    QCOMPARE(DonneCardinalitay(PreteBarre()), u"13 mots"_s); // nothing is filtered
    QTest::keyClicks(champ.lineEdit(), u"xyz"_s);
    QCOMPARE(Prete<DTableView>().currentIndex().data().toString(), u"refaire"_s);
}

// With those that follow it.
void tst_PageFiltresAllerA::enHaut()
{
    QString texte;
    for (char16_t rang = 0; rang < 26 * 26; ++rang)
        texte += QString(QChar(u'a' + rang / 26)) + QChar(u'a' + rang % 26) + u'\n';
    PageFiltres::PreteMemoire().fichier = Ecris(texte);
    Refais();
    Montre();

    Visite(u"km"_s);
    auto const & liste = Prete<DTableView>();
    QCOMPARE(liste.currentIndex().data().toString(), u"km"_s);
    QCOMPARE(liste.visualRect(liste.currentIndex()).top(), 0);
}

// Those that one has gone to stand in the list of the field, the last one first.
void tst_PageFiltresAllerA::motsVisites()
{
    Montre();
    for (QString const & mot : {u"reteNUE"_s, u"abr"_s, u"xyz"_s, u"refai"_s, u"abr"_s})
        Visite(mot);
    auto const & champ = *PreteBarreDOrdre().PreteComboDeRecherche();
    QStringList const visites = {u"abri"_s, u"refaire"_s, u"retenue"_s};
    for (int i = 0; i < 3; ++i)
        QCOMPARE(champ.itemText(i), visites.at(i));
    QCOMPARE(champ.count(), 3);
    QCOMPARE(champ.currentText(), u"abri"_s);

    Refais();
    auto & autre = *PreteBarreDOrdre().PreteComboDeRecherche();
    QCOMPARE(autre.count(), 3);
    QCOMPARE(autre.currentText(), u"abri"_s);
    Montre();
    autre.setCurrentIndex(1);
    QCOMPARE(Prete<DTableView>().currentIndex().data().toString(), u"refaire"_s);
}

void tst_PageFiltresAllerA::visitesLimitees()
{
    QString texte;
    for (char16_t lettre = u'a'; lettre <= u'z'; ++lettre)
        texte += QString(QChar(lettre)) + u'\n';
    PageFiltres::PreteMemoire().fichier = Ecris(texte);
    Refais();
    Montre();
    for (char16_t lettre = u'a'; lettre <= u'z'; ++lettre)
        Visite(QChar(lettre));

    auto const & champ = *PreteBarreDOrdre().PreteComboDeRecherche();
    QCOMPARE(champ.count(), 20);
    QCOMPARE(champ.itemText(0), u"z"_s);
    QCOMPARE(champ.itemText(19), u"g"_s);
}

QTEST_MAIN(tst_PageFiltresAllerA)
#include "tst_PageFiltresAllerA.moc"
