// tests/foundation/tst_TexteRicheAleatoire.cpp
//
// Texts that nobody writes: whatever their tags, the ranges are within the text and the time grows
// with its length. Quadratic time would not end before the time limit of the test.
#include "foundation/ImagesTexteRiche.h"

#include <QtTest>

#include <QRandomGenerator>

using namespace Qt::StringLiterals;
using namespace RoutinesGeneralesQt;

namespace {

constexpr quint32 kGraine = 20'250'117;
constexpr int kNombreDeTextes = 100'000;
constexpr int kUniteEnorme = 1'000'000;

QString FabriqueTexte(QRandomGenerator & hasard)
{
    static QStringList const morceaux = {
        u"<i>"_s,
        u"<b>"_s,
        u"<s>"_s,
        u"<em>"_s,
        u"<m>"_s,
        u"<sub>"_s,
        u"<sup>"_s,
        u"<br/>"_s,
        u"<pn>"_s,
        u"<au>"_s,
        u"<zut>"_s,
        u"<a x>"_s,
        u"</i>"_s,
        u"</b>"_s,
        u"</pn>"_s,
        u"</"_s,
        u"</>"_s,
        u"<"_s,
        u">"_s,
        u"< >"_s,
        u"<>"_s,
        u"abc"_s,
        u"ß"_s,
        u"😀"_s,
        QString(QChar(0xd800)),
        u" "_s,
        u"\n"_s,
        u"e\u0301"_s,
        QString(QChar(0)),
        u"\u202e"_s,
        u"\u05d0"_s,
        u"<font color =\"#12345"_s,
        u"<span class=\"surlignement\">"_s,
    };
    QString texte;
    for (quint32 reste = hasard.bounded(25U); reste > 0; --reste)
        texte += morceaux.at(hasard.bounded(static_cast<int>(morceaux.size())));
    return texte;
}

bool PlagesDansLeTexte(TexteAvecFormat const & analyse)
{
    auto const longueur = static_cast<int>(analyse.texte.Longueur());
    return std::all_of(analyse.formats.begin(), analyse.formats.end(), [=](auto const & plage) {
        return plage.start >= 0 && plage.length >= 0 && plage.start + plage.length <= longueur;
    });
}

} // namespace

class tst_TexteRicheAleatoire : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void analyse();
    void dessin();
    void texteEnorme_data();
    void texteEnorme();
};

void tst_TexteRicheAleatoire::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_TexteRicheAleatoire::analyse()
{
    QRandomGenerator hasard(kGraine);
    QFont const font = DonneFontDImage();
    for (int i = 0; i < kNombreDeTextes; ++i) {
        QString const texte = FabriqueTexte(hasard);
        TexteAvecFormat const resultat = DonneTexteAvecFormat(texte, font);
        QVERIFY2(PlagesDansLeTexte(resultat), qPrintable(texte));
        // Each range is the work of one end tag.
        QVERIFY2(resultat.formats.size() <= 2 * texte.count(u"</"_s), qPrintable(texte));
        QCOMPARE(QString(resultat.source), texte);
    }
}

void tst_TexteRicheAleatoire::dessin()
{
    QRandomGenerator hasard(kGraine);
    for (int i = 0; i < 1'000; ++i) {
        QString const texte = FabriqueTexte(hasard);
        QRect const rectangle(0, 0, static_cast<int>(hasard.bounded(300U)), 60);
        QImage const premiere = DessineRang(rectangle, texte, FabriqueTexte(hasard), i % 2 == 0);
        QVERIFY(DonneLongueurTexteRiche(texte, DonneFontDImage()) >= 0.0);
        QVERIFY(!premiere.isNull());
    }
}

void tst_TexteRicheAleatoire::texteEnorme_data()
{
    QTest::addColumn<QString>("morceau");
    QTest::addColumn<QString>("fin");
    QTest::newRow("plain") << u"a"_s << u""_s;
    QTest::newRow("opening brackets") << u"<"_s << u""_s;
    QTest::newRow("closing brackets") << u">"_s << u""_s;
    QTest::newRow("unfinished tags") << u"<b"_s << u""_s;
    QTest::newRow("one tag without an end") << u"b "_s << u""_s;
    QTest::newRow("elements") << u"<b>x</b>"_s << u""_s;
    QTest::newRow("unclosed elements") << u"<b>x"_s << u""_s;
    QTest::newRow("nested elements") << u"<b>x"_s << u"</b>"_s;
    QTest::newRow("ends of names in a nest") << u"<b></pn>"_s << u"</b>"_s;
    QTest::newRow("comparisons") << u"< >"_s << u""_s;
    QTest::newRow("capitals") << u"<s>x"_s << u"</s>"_s;
    QTest::newRow("line feeds") << u"<br/>"_s << u""_s;
}

void tst_TexteRicheAleatoire::texteEnorme()
{
    QFETCH(QString, morceau);
    QFETCH(QString, fin);
    qsizetype const nombre = kUniteEnorme / (morceau.size() + fin.size());
    QString const texte = u"<"_s + morceau.repeated(nombre) + fin.repeated(nombre);
    TexteAvecFormat const analyse = DonneTexteAvecFormat(texte, DonneFontDImage());
    QVERIFY(PlagesDansLeTexte(analyse));
    QVERIFY(analyse.formats.size() <= 2 * nombre);
}

QTEST_MAIN(tst_TexteRicheAleatoire)
#include "tst_TexteRicheAleatoire.moc"
