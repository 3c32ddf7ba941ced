// tests/search/tst_WidgetRechercheAbstraitExpReg.cpp
#include "search/BarreRecherche.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

enum class Mode
{
    Contient,
    CommencePar,
    MotEntier
};

QRegularExpression DonneExpReg(Mode mode, QString const & chaine)
{
    switch (mode) {
    case Mode::Contient:
        return WidgetRechercheAbstrait::DonneExpRegContient(chaine);
    case Mode::CommencePar:
        return WidgetRechercheAbstrait::DonneExpRegCommencePar(chaine);
    case Mode::MotEntier:
        return WidgetRechercheAbstrait::DonneExpRegMotEntier(chaine);
    }
    return {};
}

} // namespace

class tst_WidgetRechercheAbstraitExpReg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void motif_data();
    void motif();
    void correspondance_data();
    void correspondance();
    void sansOption_data();
    void sansOption();
    void texteDuFrontal();
};

void tst_WidgetRechercheAbstraitExpReg::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // menus of bars
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_WidgetRechercheAbstraitExpReg::motif_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QString>("chaine");
    QTest::addColumn<QString>("motif");

    QTest::newRow("contains") << Mode::Contient << u"mot"_s << uR"(mot)"_s;
    QTest::newRow("contains, escaped") << Mode::Contient << u"a.b"_s << uR"(a\.b)"_s;
    QTest::newRow("contains, empty") << Mode::Contient << QString() << QString();
    QTest::newRow("begins with") << Mode::CommencePar << u"mot"_s << uR"(\b(mot))"_s;
    QTest::newRow("begins with, escaped") << Mode::CommencePar << u"(a"_s << uR"(\b(\(a))"_s;
    QTest::newRow("begins with, empty") << Mode::CommencePar << QString() << uR"(\b())"_s;
    QTest::newRow("whole word") << Mode::MotEntier << u"mot"_s << uR"(\bmot\b)"_s;
    QTest::newRow("whole word, escaped") << Mode::MotEntier << u"a+b"_s << uR"(\ba\+b\b)"_s;
    QTest::newRow("whole word, empty") << Mode::MotEntier << QString() << uR"(\b\b)"_s;
    QTest::newRow("whole word, text like a placeholder")
        << Mode::MotEntier << u"%1"_s << uR"(\b\%1\b)"_s;
}

void tst_WidgetRechercheAbstraitExpReg::motif()
{
    QFETCH(Mode, mode);
    QFETCH(QString, chaine);
    QRegularExpression const expression = DonneExpReg(mode, chaine);
    QTEST(expression.pattern(), "motif");
    QVERIFY(expression.isValid());
}

void tst_WidgetRechercheAbstraitExpReg::correspondance_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QString>("chaine");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<bool>("trouve");

    QTest::newRow("contains, a point is a point") << Mode::Contient << u"a.b"_s << u"a.b"_s << true;
    QTest::newRow("contains, a point is no wildcard")
        << Mode::Contient << u"a.b"_s << u"axb"_s << false;
    QTest::newRow("contains, inside a word") << Mode::Contient << u"ot"_s << u"motif"_s << true;
    QTest::newRow("contains, other case") << Mode::Contient << u"Mot"_s << u"mot"_s << false;
    QTest::newRow("begins with, at a word") << Mode::CommencePar << u"mo"_s << u"un mot"_s << true;
    QTest::newRow("begins with, inside a word")
        << Mode::CommencePar << u"ot"_s << u"un mot"_s << false;
    QTest::newRow("begins with, other case")
        << Mode::CommencePar << u"MO"_s << u"un mot"_s << false;
    QTest::newRow("whole word") << Mode::MotEntier << u"mot"_s << u"un mot!"_s << true;
    QTest::newRow("whole word, only a beginning")
        << Mode::MotEntier << u"mot"_s << u"un motif"_s << false;
    QTest::newRow("whole word, only an end")
        << Mode::MotEntier << u"tif"_s << u"un motif"_s << false;
    QTest::newRow("whole word, other case") << Mode::MotEntier << u"Mot"_s << u"un mot"_s << false;
    QTest::newRow("pattern characters are text")
        << Mode::Contient << uR"([a-z]*\d(x|y)$)"_s << uR"(1 [a-z]*\d(x|y)$ 2)"_s << true;
}

void tst_WidgetRechercheAbstraitExpReg::correspondance()
{
    QFETCH(Mode, mode);
    QFETCH(QString, chaine);
    QFETCH(QString, texte);
    QTEST(DonneExpReg(mode, chaine).match(texte).hasMatch(), "trouve");
}

void tst_WidgetRechercheAbstraitExpReg::sansOption_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::newRow("contains") << Mode::Contient;
    QTest::newRow("begins with") << Mode::CommencePar;
    QTest::newRow("whole word") << Mode::MotEntier;
}

void tst_WidgetRechercheAbstraitExpReg::sansOption()
{
    QFETCH(Mode, mode);
    // The host adds what it wants; the case is not looked at here.
    QCOMPARE(DonneExpReg(mode, u"mot"_s).patternOptions(), QRegularExpression::NoPatternOption);
}

void tst_WidgetRechercheAbstraitExpReg::texteDuFrontal()
{
    BarreRecherche barre;
    WidgetRechercheAbstrait const & recherche = barre;
    barre.PrendsChaineRecherche(u"a.b"_s);
    QCOMPARE(recherche.DonneExpRegContient().pattern(), uR"(a\.b)"_s);
    QCOMPARE(recherche.DonneExpRegCommencePar().pattern(), uR"(\b(a\.b))"_s);
    QCOMPARE(recherche.DonneExpRegMotEntier().pattern(), uR"(\ba\.b\b)"_s);
    barre.PrendsOptions(CstRecherche::kRespecterCasse);
    QCOMPARE(recherche.DonneExpRegContient().patternOptions(), QRegularExpression::NoPatternOption);
}

QTEST_MAIN(tst_WidgetRechercheAbstraitExpReg)
#include "tst_WidgetRechercheAbstraitExpReg.moc"
