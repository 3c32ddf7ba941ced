// tests/dialogs/tst_DAlerteNotification.cpp
#include "dialogs/DAlerteNotification.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

QPixmap Carre(QColor const & couleur)
{
    QPixmap image(8, 8);
    image.fill(couleur);
    return image;
}

} // namespace

class tst_DAlerteNotification : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void baseDonneeParLAlerte();
    void defautsDeLApplication();
    void champsDonnes();
    void imageEcriteUneFois();
    void formatSelonLeSuffixe();
    void imageQuiNePeutEtreEcrite_data();
    void imageQuiNePeutEtreEcrite();
    void sansNomDeFichierRienNEstEcrit();
    void depuisUneAlerteSimple();
    void copie();
    void copieIndependanteDesDefauts();

private:
    std::unique_ptr<QTemporaryDir> monDossier;
};

void tst_DAlerteNotification::init()
{
    monDossier = std::make_unique<QTemporaryDir>();
}

void tst_DAlerteNotification::cleanup()
{
    DAlerteNotification::MetsIconeGenerale({});
    DAlerteNotification::MetsNomFichierSurDisque({});
    DAlerteNotification::MetsRaccourci({});
}

void tst_DAlerteNotification::baseDonneeParLAlerte()
{
    DAlerteInfo info(DAlerteInfo::kErreur, UniChaine("message"), UniChaine("note"),
                     UniChaine("titre"));
    info.texteRiche = true;
    DAlerteNotification const notification(info);
    QCOMPARE(notification.DonneTypeDialogue(), DAlerteInfo::kErreur);
    QCOMPARE(QString(notification.DonneMessage()), u"message"_s);
    QCOMPARE(QString(notification.DonneNote()), u"note"_s);
    QCOMPARE(QString(notification.DonneTitreFenetre()), u"titre"_s);
    QVERIFY(notification.texteRiche);
    QVERIFY(notification.DonneIcone().isNull());
}

void tst_DAlerteNotification::defautsDeLApplication()
{
    QString const fichier = monDossier->filePath(u"icone.png"_s);
    DAlerteNotification::MetsIconeGenerale(Carre(Qt::red));
    DAlerteNotification::MetsNomFichierSurDisque(UniChemin(fichier));
    DAlerteNotification::MetsRaccourci({UniChaine("org.essai"), UniChaine("Essai"), {}, {}, {}});

    DAlerteNotification const notification(
        DAlerteInfo(DAlerteInfo::kNotification, UniChaine("message")));
    QCOMPARE(notification.DonneIcone().toImage().pixelColor(4, 4), QColor(Qt::red));
    QCOMPARE(QString(notification.DonneNomFichierImage()), fichier);
    QCOMPARE(QString(notification.DonneInfosPourRaccourcis().identifiantApplication),
             u"org.essai"_s);
    QCOMPARE(QImage(fichier).pixelColor(4, 4), QColor(Qt::red));
}

void tst_DAlerteNotification::champsDonnes()
{
    QString const fichier = monDossier->filePath(u"autre.png"_s);
    DAlerteNotification const notification(Carre(Qt::blue), UniChemin(fichier),
                                           {UniChaine("org.autre"), {}, {}, {}, {}},
                                           UniChaine("message"), UniChaine("note"));
    QCOMPARE(notification.DonneTypeDialogue(), DAlerteInfo::kNotification);
    QCOMPARE(QString(notification.DonneMessage()), u"message"_s);
    QCOMPARE(QString(notification.DonneNote()), u"note"_s);
    QVERIFY(notification.EstTitreParDefaut());
    QCOMPARE(QImage(fichier).pixelColor(4, 4), QColor(Qt::blue));
}

void tst_DAlerteNotification::imageEcriteUneFois()
{
    UniChemin const fichier(monDossier->filePath(u"icone.png"_s));
    DAlerteNotification const premiere(Carre(Qt::red), fichier, {}, {}, {});
    DAlerteNotification const seconde(Carre(Qt::green), fichier, {}, {}, {});
    QCOMPARE(QImage(fichier).pixelColor(4, 4), QColor(Qt::red));
}

void tst_DAlerteNotification::formatSelonLeSuffixe()
{
    QString const fichier = monDossier->filePath(u"icone.bmp"_s);
    DAlerteNotification const notification(Carre(Qt::red), UniChemin(fichier), {}, {}, {});
    QCOMPARE(QImageReader::imageFormat(fichier), QByteArray("bmp"));
    QCOMPARE(QDir(monDossier->path()).entryList(QDir::Files), QStringList{u"icone.bmp"_s});
}

void tst_DAlerteNotification::imageQuiNePeutEtreEcrite_data()
{
    QTest::addColumn<QString>("nom");
    QTest::addColumn<bool>("avecImage");
    QTest::newRow("folder that does not exist") << u"absent/icone.png"_s << true;
    QTest::newRow("format that does not exist") << u"icone.inconnu"_s << true;
    QTest::newRow("no image") << u"icone.png"_s << false;
}

// Nothing is left behind that a later notification would take for the image.
void tst_DAlerteNotification::imageQuiNePeutEtreEcrite()
{
    QFETCH(QString, nom);
    QFETCH(bool, avecImage);
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    DAlerteNotification const notification(avecImage ? Carre(Qt::red) : QPixmap(),
                                           UniChemin(monDossier->filePath(nom)), {},
                                           UniChaine("message"), {});
    QCOMPARE(QString(notification.DonneNomFichierImage()), monDossier->filePath(nom));
    QVERIFY(QDir(monDossier->path()).isEmpty());
}

void tst_DAlerteNotification::sansNomDeFichierRienNEstEcrit()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    DAlerteNotification const notification(Carre(Qt::red), {}, {}, UniChaine("message"), {});
    QVERIFY(notification.DonneNomFichierImage().EstVide());
}

void tst_DAlerteNotification::depuisUneAlerteSimple()
{
    DAlerteNotification::MetsRaccourci({UniChaine("org.essai"), {}, {}, {}, {}});
    DAlerteNotification const notification = DAlerteInfo(DAlerteInfo::kErreur, UniChaine("un"));
    QCOMPARE(QString(notification.DonneMessage()), u"un"_s);
    QCOMPARE(QString(notification.DonneInfosPourRaccourcis().identifiantApplication),
             u"org.essai"_s);
}

void tst_DAlerteNotification::copie()
{
    DAlerteNotification const originale(Carre(Qt::red), {}, {UniChaine("id"), {}, {}, {}, {}},
                                        UniChaine("un"), {});
    DAlerteNotification copie(DAlerteInfo(DAlerteInfo::kErreur, UniChaine("deux")));
    copie = originale;
    QCOMPARE(QString(copie.DonneMessage()), u"un"_s);
    QCOMPARE(copie.DonneTypeDialogue(), DAlerteInfo::kNotification);
    QCOMPARE(QString(copie.DonneInfosPourRaccourcis().identifiantApplication), u"id"_s);
    QCOMPARE(copie.DonneIcone().toImage().pixelColor(4, 4), QColor(Qt::red));
}

// Each notification keeps what it was made with, whatever the application sets afterwards.
void tst_DAlerteNotification::copieIndependanteDesDefauts()
{
    QString const fichier = monDossier->filePath(u"icone.png"_s);
    DAlerteNotification::MetsIconeGenerale(Carre(Qt::red));
    DAlerteNotification::MetsNomFichierSurDisque(UniChemin(fichier));
    DAlerteNotification::MetsRaccourci({UniChaine("avant"), {}, {}, {}, {}});
    DAlerteNotification const originale(DAlerteInfo(DAlerteInfo::kNotification, UniChaine("un")));
    DAlerteNotification::MetsIconeGenerale(Carre(Qt::blue));
    DAlerteNotification::MetsNomFichierSurDisque({});
    DAlerteNotification::MetsRaccourci({UniChaine("apres"), {}, {}, {}, {}});

    DAlerteNotification const copie(originale);

    for (DAlerteNotification const * const notification : {&originale, &copie}) {
        QCOMPARE(notification->DonneIcone().toImage().pixelColor(4, 4), QColor(Qt::red));
        QCOMPARE(QString(notification->DonneNomFichierImage()), fichier);
        QCOMPARE(QString(notification->DonneInfosPourRaccourcis().identifiantApplication),
                 u"avant"_s);
    }
}

QTEST_MAIN(tst_DAlerteNotification)
#include "tst_DAlerteNotification.moc"
