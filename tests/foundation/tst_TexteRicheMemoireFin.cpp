// tests/foundation/tst_TexteRicheMemoireFin.cpp
//
// What is remembered goes in time: before the application, the library or the process does.
#include "foundation/ImagesTexteRiche.h"
#include "foundation/ProgrammeEnfant.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace RoutinesGeneralesQt;

namespace {

constexpr char kOptionDeuxApplications[] = "--two-applications";
constexpr char kOptionApplicationOubliee[] = "--leaked-application";

} // namespace

class tst_TexteRicheMemoireFin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void finDeLApplication_data();
    void finDeLApplication();
    void bibliothequeDechargee();
};

void tst_TexteRicheMemoireFin::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_TexteRicheMemoireFin::finDeLApplication_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("reponse");
    QTest::newRow("two applications, one after the other")
        << QString::fromLatin1(kOptionDeuxApplications) << u"same width"_s;
    QTest::newRow("an application that is never destroyed")
        << QString::fromLatin1(kOptionApplicationOubliee) << u"some width"_s;
}

void tst_TexteRicheMemoireFin::finDeLApplication()
{
    QFETCH(QString, option);
    QTEST(LanceEnfant({option}, {}), "reponse");
}

void tst_TexteRicheMemoireFin::bibliothequeDechargee()
{
    QProcess aide;
    aide.start(QStringLiteral(DECHARGEMENT_PROGRAMME), {QStringLiteral(DECHARGEMENT_BIBLIOTHEQUE)});
    QVERIFY(aide.waitForFinished());
    QCOMPARE(aide.exitStatus(), QProcess::NormalExit);
    QCOMPARE(aide.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(aide.readAllStandardOutput()), u"measured\nunloaded\n"_s);
}

static int DessineAvecDeuxApplications(int nombre, char ** arguments)
{
    double largeurs[2] = {};
    for (double & largeur : largeurs) {
        QApplication const application(nombre, arguments);
        DessineRang(kLarge, TexteLong(), u"Hugo"_s);
        largeur = DonneLongueurTexteRiche(TexteLong(), DonneFontDImage());
    }
    return Imprime(largeurs[0] > 0.0 && largeurs[0] == largeurs[1] ? u"same width"_s
                                                                   : u"other width"_s);
}

static int DessineAvecApplicationOubliee(int nombre, char ** arguments)
{
    static QApplication * const application = new QApplication(nombre, arguments);
    DessineRang(kLarge, TexteLong(), u"Hugo"_s);
    double const largeur = DonneLongueurTexteRiche(TexteLong(), application->font());
    return Imprime(largeur > 0.0 ? u"some width"_s : u"no width"_s);
}

int main(int nombre, char ** arguments)
{
    if (nombre == 2 && qstrcmp(arguments[1], kOptionDeuxApplications) == 0)
        return DessineAvecDeuxApplications(nombre, arguments);
    if (nombre == 2 && qstrcmp(arguments[1], kOptionApplicationOubliee) == 0)
        return DessineAvecApplicationOubliee(nombre, arguments);
    QApplication const application(nombre, arguments);
    tst_TexteRicheMemoireFin test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "tst_TexteRicheMemoireFin.moc"
