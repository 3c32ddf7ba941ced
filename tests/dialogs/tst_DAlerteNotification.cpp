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
    void sansNomDeFichierRienNEstEcrit();
    void copie();

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

void tst_DAlerteNotification::sansNomDeFichierRienNEstEcrit()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    DAlerteNotification const notification(Carre(Qt::red), {}, {}, UniChaine("message"), {});
    QVERIFY(notification.DonneNomFichierImage().EstVide());
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
}

QTEST_MAIN(tst_DAlerteNotification)
#include "tst_DAlerteNotification.moc"
