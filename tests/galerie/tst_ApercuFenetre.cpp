// tests/galerie/tst_ApercuFenetre.cpp
#include "ApercuFenetre.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_ApercuFenetre : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tailleConseillee();
    void mesureDonnee();
    void contenuPosayApresCoup();
    void suitLaPalette();
    void suitLaPolice();
    void suitLaFeuilleDeStyle();
    void suitLaFermeture();
    void fenetreOuverteGardeSaTaille();
    void fenetreDisparue();

private:
    QImage DonneImage() const { return monApercu->grab().toImage(); }

    QPalette maPalette;
    QFont maPolice;
    std::unique_ptr<QFrame> maFenetre;
    QLabel * monLabel = nullptr;
    std::unique_ptr<ApercuFenetre> monApercu;
};

void tst_ApercuFenetre::init()
{
    maPalette = QApplication::palette();
    maPolice = QApplication::font();
    maFenetre = std::make_unique<QFrame>();
    monLabel = new QLabel(u"Bonjour"_s);
    (new QVBoxLayout(maFenetre.get()))->addWidget(monLabel);
    monApercu = std::make_unique<ApercuFenetre>(u"Aperçu"_s, *maFenetre);
    QCoreApplication::processEvents(); // the picture that follows the first one
}

void tst_ApercuFenetre::cleanup()
{
    monApercu.reset();
    maFenetre.reset();
    qApp->setStyleSheet(QString());
    QApplication::setFont(maPolice);
    QApplication::setPalette(maPalette);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ApercuFenetre::tailleConseillee()
{
    QCOMPARE(monApercu->size(), maFenetre->sizeHint());
    QCOMPARE(monApercu->accessibleName(), u"Aperçu"_s);
}

void tst_ApercuFenetre::mesureDonnee()
{
    QSize taille(120, 50);
    monApercu = std::make_unique<ApercuFenetre>(u"Aperçu"_s, *maFenetre, [&] { return taille; });
    QCOMPARE(monApercu->size(), taille);

    taille = QSize(90, 70);
    monApercu->Actualise();

    QCOMPARE(monApercu->size(), taille);
}

void tst_ApercuFenetre::contenuPosayApresCoup()
{
    monApercu = std::make_unique<ApercuFenetre>(u"Aperçu"_s, *maFenetre);

    monLabel->setText(u"Un texte plus long que le premier"_s);

    QTRY_COMPARE(monApercu->size(), maFenetre->sizeHint());
    QCOMPARE(DonneImage(), maFenetre->grab().toImage());
}

void tst_ApercuFenetre::suitLaPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(10, 20, 30));
    palette.setColor(QPalette::WindowText, QColor(240, 230, 220));
    QVERIFY(DonneImage().pixelColor(1, 1) != QColor(10, 20, 30));

    QApplication::setPalette(palette);

    QTRY_COMPARE(DonneImage().pixelColor(1, 1), QColor(10, 20, 30));
}

void tst_ApercuFenetre::suitLaPolice()
{
    QSize const avant = monApercu->size();
    QFont police = maPolice;
    police.setPixelSize(60);

    QApplication::setFont(police);

    QTRY_VERIFY(monApercu->height() > avant.height());
    QTRY_COMPARE(monApercu->size(), maFenetre->sizeHint());
}

void tst_ApercuFenetre::suitLaFeuilleDeStyle()
{
    QSize const avant = monApercu->size();

    qApp->setStyleSheet(u"QLabel { padding: 20px; background: #0a141e; }"_s);

    QTRY_VERIFY(monApercu->height() >= avant.height() + 40);
    QCOMPARE(DonneImage(), maFenetre->grab().toImage());
}

void tst_ApercuFenetre::suitLaFermeture()
{
    QSize const avant = monApercu->size();
    maFenetre->show();
    monLabel->setText(u"Un texte plus long que le premier"_s);

    maFenetre->close();

    QTRY_VERIFY(monApercu->width() > avant.width());
    QCOMPARE(monApercu->size(), maFenetre->sizeHint());
}

void tst_ApercuFenetre::fenetreOuverteGardeSaTaille()
{
    QSize const taille = maFenetre->sizeHint() * 2;
    maFenetre->show();
    maFenetre->resize(taille);

    monApercu->Actualise();

    QCOMPARE(maFenetre->size(), taille);
    QCOMPARE(monApercu->size(), taille);
}

void tst_ApercuFenetre::fenetreDisparue()
{
    QImage const avant = DonneImage();

    maFenetre.reset();
    monApercu->Actualise();

    QCOMPARE(DonneImage(), avant);
}

QTEST_MAIN(tst_ApercuFenetre)
#include "tst_ApercuFenetre.moc"
