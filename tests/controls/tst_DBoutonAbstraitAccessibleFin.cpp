// tests/controls/tst_DBoutonAbstraitAccessibleFin.cpp
//
// The interfaces for screen readers, and applications that come and go.
#include "controls/LectureBouton.h"
#include "foundation/ProgrammeEnfant.h"

using namespace Qt::StringLiterals;
using namespace LectureBouton;

namespace {

constexpr char kOptionDeuxApplications[] = "--two-applications";
constexpr char kOptionControleSurvivant[] = "--control-outlives-application";

} // namespace

class tst_DBoutonAbstraitAccessibleFin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void finDeLApplication_data();
    void finDeLApplication();
};

void tst_DBoutonAbstraitAccessibleFin::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DBoutonAbstraitAccessibleFin::finDeLApplication_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("reponse");
    QTest::newRow("two applications, one after the other")
        << QString::fromLatin1(kOptionDeuxApplications) << u"abc abc"_s;
    QTest::newRow("a control that dies at the end of the process")
        << QString::fromLatin1(kOptionControleSurvivant) << u"abc"_s;
}

void tst_DBoutonAbstraitAccessibleFin::finDeLApplication()
{
    QFETCH(QString, option);
    QTEST(LanceEnfant({option}, {}), "reponse");
}

static int LisAvecDeuxApplications(int nombre, char ** arguments)
{
    QStringList noms;
    for (int tour = 0; tour < 2; ++tour) {
        QApplication const application(nombre, arguments);
        DCheckBox const controle(u"<b>abc</b>"_s);
        noms << Lu(controle)->text(QAccessible::Name);
    }
    return Imprime(noms.join(u' '));
}

static int LaisseUnControle(int nombre, char ** arguments)
{
    // Before the application, and so destroyed after all that it brings along.
    static std::unique_ptr<QWidget> fenetre;
    QApplication const application(nombre, arguments);
    fenetre = std::make_unique<QWidget>();
    auto const * const controle = new DCheckBox(u"<b>abc</b>"_s, fenetre.get());
    return Imprime(Lu(*controle)->text(QAccessible::Name));
}

int main(int nombre, char ** arguments)
{
    if (nombre == 2 && qstrcmp(arguments[1], kOptionDeuxApplications) == 0)
        return LisAvecDeuxApplications(nombre, arguments);
    if (nombre == 2 && qstrcmp(arguments[1], kOptionControleSurvivant) == 0)
        return LaisseUnControle(nombre, arguments);
    QApplication const application(nombre, arguments);
    tst_DBoutonAbstraitAccessibleFin test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "tst_DBoutonAbstraitAccessibleFin.moc"
