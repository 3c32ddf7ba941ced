// tests/foundation/tst_FichierPixmap.cpp
#include "foundation/FichierPixmap_p.h"
#include "foundation/Polices.h"
#include "foundation/ProgrammeEnfant.h"

#include <QtTest>

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr char kOptionPixmap[] = "--pixmap";

// The width of the picture in pixels and its ratio.
QString DecrisPixmap(QString const & chemin)
{
    QPixmap const pixmap = RoutinesGeneralesQt::DonnePixmapAvecDPI(chemin);
    return pixmap.isNull() ? u"null"_s
                           : u"%1 at %2"_s.arg(pixmap.width()).arg(pixmap.devicePixelRatio());
}

} // namespace

class tst_FichierPixmap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void choixDuFichier_data();
    void choixDuFichier();
    void choixSansExtension();
    void pixmap_data();
    void pixmap();

private:
    void EcrisImage(QString const & nom, int cote);

    QTemporaryDir monDossier;
};

void tst_FichierPixmap::initTestCase()
{
    QVERIFY(monDossier.isValid());
    QVERIFY(QDir(monDossier.path()).mkpath(u"avec.point"_s));
    EcrisImage(u"double.png"_s, 8);
    EcrisImage(u"double@2x.png"_s, 16);
    EcrisImage(u"double@3x.png"_s, 24);
    EcrisImage(u"simple.png"_s, 8);
    EcrisImage(u"triple.png"_s, 8);
    EcrisImage(u"triple@3x.png"_s, 24);
    EcrisImage(u"deux.points.png"_s, 8);
    EcrisImage(u"deux.points@2x.png"_s, 16);
    EcrisImage(u"seulement@2x.png"_s, 16);
}

void tst_FichierPixmap::choixDuFichier_data()
{
    QTest::addColumn<QString>("chemin");
    QTest::addColumn<double>("voulu");
    QTest::addColumn<QString>("nom");
    QTest::addColumn<double>("ratio");
    QString const deux = u"double.png"_s;
    QString const variante = u"double@2x.png"_s;
    QTest::newRow("ratio 0") << deux << 0.0 << deux << 1.0;
    QTest::newRow("ratio 1") << deux << 1.0 << deux << 1.0;
    QTest::newRow("a little above 1") << deux << 1.01 << variante << 2.0;
    QTest::newRow("ratio 1.5") << deux << 1.5 << variante << 2.0;
    QTest::newRow("ratio 2") << deux << 2.0 << variante << 2.0;
    QTest::newRow("ratio 3 looks for nothing denser") << deux << 3.0 << variante << 2.0;
    QTest::newRow("only a denser variant") << u"triple.png"_s << 3.0 << u"triple.png"_s << 1.0;
    QTest::newRow("no variant") << u"simple.png"_s << 2.0 << u"simple.png"_s << 1.0;
    QTest::newRow("two points") << u"deux.points.png"_s << 2.0 << u"deux.points@2x.png"_s << 2.0;
    QTest::newRow("the variant alone") << u"seulement.png"_s << 2.0 << u"seulement@2x.png"_s << 2.0;
    QTest::newRow("missing") << u"absent.png"_s << 2.0 << u"absent.png"_s << 1.0;
}

void tst_FichierPixmap::choixDuFichier()
{
    QFETCH(QString, chemin);
    QFETCH(double, voulu);
    QFETCH(QString, nom);
    QFETCH(double, ratio);
    FichierPixmap const fichier = ChoisisFichierPixmap(monDossier.filePath(chemin), voulu);
    QCOMPARE(fichier.nom, monDossier.filePath(nom));
    QCOMPARE(fichier.ratio, ratio);
}

void tst_FichierPixmap::choixSansExtension()
{
    // In the working directory, so that no folder above has a point in its name.
    QString const avant = QDir::currentPath();
    QVERIFY(QDir::setCurrent(monDossier.path()));
    for (char const * nom : {"image@2x", "avec@2x.point", "@2x"}) {
        QString const chemin = QString::fromLatin1(nom);
        QVERIFY(QDir().mkpath(chemin));
        QFile::remove(chemin + u"/image"_s);
        QFile fichier(chemin + u"/image"_s);
        QVERIFY(fichier.open(QIODevice::WriteOnly));
    }
    FichierPixmap const sansPoint = ChoisisFichierPixmap(u"image"_s, 2.0);
    // The last point of the whole path counts, even that of a folder.
    FichierPixmap const dossier = ChoisisFichierPixmap(u"avec.point/image"_s, 2.0);
    FichierPixmap const vide = ChoisisFichierPixmap(QString(), 2.0);
    FichierPixmap const videSimple = ChoisisFichierPixmap(QString(), 1.0);
    QVERIFY(QDir::setCurrent(avant));

    QCOMPARE(sansPoint.nom, u"image@2x"_s);
    QCOMPARE(dossier.nom, u"avec@2x.point/image"_s);
    QCOMPARE(vide.nom, u"@2x"_s);
    QCOMPARE(videSimple.nom, QString());
}

void tst_FichierPixmap::pixmap_data()
{
    QTest::addColumn<QString>("chemin");
    QTest::addColumn<QString>("echelle");
    QTest::addColumn<bool>("sansVariantes");
    QTest::addColumn<QString>("description");
    QString const fichier = monDossier.filePath(u"double.png"_s);
    QTest::newRow("at 1") << fichier << u"1"_s << false << u"8 at 1"_s;
    QTest::newRow("at 1.5, drawn at 2") << fichier << u"1.5"_s << false << u"16 at 2"_s;
    QTest::newRow("at 2") << fichier << u"2"_s << false << u"16 at 2"_s;
    QTest::newRow("at 3") << fichier << u"3"_s << false << u"16 at 2"_s;
    QTest::newRow("switched off") << fichier << u"2"_s << true << u"8 at 1"_s;
    QTest::newRow("no variant") << monDossier.filePath(u"simple.png"_s) << u"2"_s << false
                                << u"8 at 1"_s;
    QTest::newRow("missing") << monDossier.filePath(u"absent.png"_s) << u"2"_s << false
                             << u"null"_s;
    QTest::newRow("empty path") << QString() << u"2"_s << false << u"null"_s;
    QString const ressource = u":/Images/boutonFermetureOngletActif"_s;
    QTest::newRow("a resource with a variant only")
        << ressource + u".png"_s << u"2"_s << false
        << u"%1 at 2"_s.arg(QImage(ressource + u"@2x.png"_s).width());
    QTest::newRow("the same at 1") << ressource + u".png"_s << u"1"_s << false << u"null"_s;
}

void tst_FichierPixmap::pixmap()
{
    QFETCH(QString, chemin);
    QFETCH(QString, echelle);
    QFETCH(bool, sansVariantes);
    QFETCH(QString, description);
    QString const interrupteur = u"QT_HIGHDPI_DISABLE_2X_IMAGE_LOADING"_s;
    QCOMPARE(LanceEnfant({QString::fromLatin1(kOptionPixmap), chemin},
                         {{u"QT_SCALE_FACTOR"_s, echelle},
                          {interrupteur, sansVariantes ? u"1"_s : QString()}}),
             description);
}

void tst_FichierPixmap::EcrisImage(QString const & nom, int cote)
{
    QImage image(cote, cote, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(monDossier.filePath(nom), "PNG"));
}

int main(int nombre, char ** arguments)
{
    QApplication application(nombre, arguments);
    QStringList const options = QCoreApplication::arguments();
    if (options.size() == 3 && options[1] == QLatin1String(kOptionPixmap))
        return Imprime(DecrisPixmap(options[2]));
    tst_FichierPixmap test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "tst_FichierPixmap.moc"
