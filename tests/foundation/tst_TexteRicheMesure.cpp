// tests/foundation/tst_TexteRicheMesure.cpp
//
// The width of a text is that of a layout.
#include "foundation/ImagesTexteRiche.h"
#include "foundation/Polices.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace RoutinesGeneralesQt;

class tst_TexteRicheMesure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void longueur_data();
    void longueur();
};

void tst_TexteRicheMesure::cleanup()
{
    ModulateurFont::LibereInstance();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_TexteRicheMesure::longueur_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("empty") << u""_s;
    QTest::newRow("blanks at the end") << u"abc   "_s;
    QTest::newRow("blanks alone") << u"   "_s;
    QTest::newRow("long") << TexteLong().repeated(50);
    QTest::newRow("tags") << u"a<b>bc</b><em>d</em><s>e</s><sup>2</sup></pn>"_s;
    QTest::newRow("line feed") << u"un<br/>deux"_s;
    QTest::newRow("right to left") << u"\u05e9\u05dc\u05d5\u05dd abc"_s;
}

void tst_TexteRicheMesure::longueur()
{
    QFETCH(QString, texte);
    QFont const font = DonneFontDImage();
    auto const analyse = DonneTexteAvecFormat(texte, font);
    QTextLayout layout(QString(analyse.texte).replace(u'\n', QChar(QChar::LineSeparator)), font);
    layout.setFormats(analyse.formats);
    layout.beginLayout();
    QTextLine ligne = layout.createLine();
    if (ligne.isValid())
        ligne.setLineWidth(2147483647);
    layout.endLayout();
    QCOMPARE(DonneLongueurTexteRiche(texte, font), ligne.naturalTextWidth());
}

QTEST_MAIN(tst_TexteRicheMesure)
#include "tst_TexteRicheMesure.moc"
