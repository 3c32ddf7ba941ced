// dialogs/tst_DMessageBox.cpp
//
// What a message box looks like.
#include "dialogs/EssaisBoites.h"

#include "dialogs/DAlerteInfoMaison.h"
#include "dialogs/DDialogueAbs.h"
#include "foundation/Polices.h"

#include <QtTest>

using namespace DDialogue;
using namespace EssaisAlertes;
using namespace Qt::StringLiterals;
using RoutinesGeneralesQt::ModulateurFont;

namespace {

// The rules of one selector, blanks apart.
QString DonneRegles(QString const & feuille, QString const & selecteur)
{
    QString const texte = feuille.simplified().remove(u' ');
    qsizetype const debut = texte.indexOf(selecteur + u'{');
    if (debut < 0)
        return {};
    qsizetype const accolade = debut + selecteur.size() + 1;
    return texte.mid(accolade, texte.indexOf(u'}', accolade) - accolade);
}

int DonnePixels(QFont const & police, double difference)
{
    return ModulateurFont::Instance()
        ->DonneFontPointVersPixelsAvecDiff(police, difference)
        .pixelSize();
}

} // namespace

class tst_DMessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { monBanc = std::make_unique<Banc>(); }
    void cleanup();

    void icone_data();
    void icone();
    void iconeMaison();
    void maisonSansImage();
    void iconeDeFenetre();
    void titre_data();
    void titre();
    void texteInformatif_data();
    void texteInformatif();
    void texteRiche_data();
    void texteRiche();
    void texteNonSelectionnable();
    void feuilleDeStyle_data();
    void feuilleDeStyle();
    void feuilleSelonLaPoliceDeLApplication();
    void feuilleSelonLeModulateur();
    void centreeSurLeParent();
    void sansCaseACocher();

private:
    std::unique_ptr<Banc> monBanc;
};

void tst_DMessageBox::cleanup()
{
    RetireRestes();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    ModulateurFont::LibereInstance();
    monBanc.reset();
}

void tst_DMessageBox::icone_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QMessageBox::Icon>("icone");
    QTest::newRow("question") << 1 << QMessageBox::Question;
    QTest::newRow("information") << 2 << QMessageBox::Information;
    QTest::newRow("warning") << 3 << QMessageBox::Warning;
    QTest::newRow("error") << 4 << QMessageBox::Critical;
    QTest::newRow("notification") << 6 << QMessageBox::Warning;
    QTest::newRow("own image that the alert lacks") << 8 << QMessageBox::NoIcon;
    QTest::newRow("none") << 9 << QMessageBox::NoIcon;
    QTest::newRow("below the types") << 0 << QMessageBox::NoIcon;
    QTest::newRow("above the types") << 10 << QMessageBox::NoIcon;
    QTest::newRow("negative") << -1 << QMessageBox::NoIcon;
}

void tst_DMessageBox::icone()
{
    QFETCH(int, type);
    QFETCH(QMessageBox::Icon, icone);
    BoiteMontree const boite(Alerte(static_cast<DAlerteInfo::eTypeDialogue>(type)));
    QCOMPARE(boite->icon(), icone);
    QCOMPARE(boite->iconPixmap().isNull(), icone == QMessageBox::NoIcon);
}

void tst_DMessageBox::iconeMaison()
{
    QPixmap image(64, 64);
    image.fill(Qt::red);
    BoiteMontree const boite(DAlerteInfoMaison(ImageCommune(image), u"Message"_s, {}, {}));
    QPixmap const icone = boite->iconPixmap();
    QCOMPARE(icone.deviceIndependentSize().toSize(), QSize(32, 32));
    QCOMPARE(icone.toImage().pixelColor(icone.rect().center()), QColor(Qt::red));
}

void tst_DMessageBox::maisonSansImage()
{
    BoiteMontree const boite(DAlerteInfoMaison(ImageCommune(), u"Message"_s, {}, {}));
    QVERIFY(boite->iconPixmap().isNull());
    QCOMPARE(boite->icon(), QMessageBox::NoIcon);
}

// An icon of the application's or the parent's stays; without any, the library has one.
void tst_DMessageBox::iconeDeFenetre()
{
    QVERIFY(QApplication::windowIcon().isNull());
    {
        BoiteMontree const boite(Alerte());
        QVERIFY(!boite->windowIcon().isNull());
    }
    QPixmap image(16, 16);
    image.fill(Qt::green);
    QApplication::setWindowIcon(QIcon(image));
    qint64 cle = 0;
    {
        BoiteMontree const boite(Alerte());
        cle = boite->windowIcon().cacheKey();
    }
    qint64 const attendue = QApplication::windowIcon().cacheKey();
    QApplication::setWindowIcon({});
    QCOMPARE(cle, attendue);
}

void tst_DMessageBox::titre_data()
{
    QTest::addColumn<QString>("titreDAlerte");
    QTest::addColumn<bool>("aParent");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("own title") << u"Alerte"_s << false << u"Alerte"_s;
    QTest::newRow("own title before the parent's") << u"Alerte"_s << true << u"Alerte"_s;
    QTest::newRow("default title") << QString() << false << u"Essais"_s;
    QTest::newRow("the parent's before the default title") << QString() << true << u"Parent"_s;
}

void tst_DMessageBox::titre()
{
    QFETCH(QString, titreDAlerte);
    QFETCH(bool, aParent);
    QFETCH(QString, attendu);
    QString const ancien = QApplication::applicationDisplayName();
    QApplication::setApplicationDisplayName(u"Essais"_s);
    QWidget parent;
    parent.setWindowTitle(u"Parent"_s);
    QString titre;
    {
        BoiteMontree const boite(Alerte(DAlerteInfo::kQuestion, u"Message"_s, {}, titreDAlerte),
                                 kBoutonOk, kBoutonOk, kBoutonOk, aParent ? &parent : nullptr);
        titre = boite->windowTitle();
    }
    QApplication::setApplicationDisplayName(ancien);
    QCOMPARE(titre, attendu);
}

void tst_DMessageBox::texteInformatif_data()
{
    QTest::addColumn<QString>("explication");
    QTest::addColumn<QString>("note");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("neither") << QString() << QString() << QString();
    QTest::newRow("explanation") << u"Explication"_s << QString() << u"Explication"_s;
    QTest::newRow("both") << u"Explication."_s << u"Note"_s << u"Explication. Note"_s;
    QTest::newRow("note alone keeps its blank") << QString() << u"Note"_s << u" Note"_s;
}

// `DonneExplication` is virtual, and it is the caller's alert that is asked.
void tst_DMessageBox::texteInformatif()
{
    QFETCH(QString, explication);
    QFETCH(QString, note);
    QFETCH(QString, attendu);
    BoiteMontree const boite(AlerteExpliquee(explication, note));
    QCOMPARE(boite->text(), u"Message"_s);
    QCOMPARE(boite->informativeText(), attendu);
}

void tst_DMessageBox::texteRiche_data()
{
    QTest::addColumn<bool>("riche");
    QTest::newRow("rich") << true;
    QTest::newRow("as Qt sees fit") << false;
}

void tst_DMessageBox::texteRiche()
{
    QFETCH(bool, riche);
    DAlerteInfo info = Alerte();
    info.texteRiche = riche;
    BoiteMontree const boite(info);
    QCOMPARE(boite->textFormat(), riche ? Qt::RichText : Qt::AutoText);
    QCOMPARE(boite.DonneMessage()->textFormat(), riche ? Qt::RichText : Qt::AutoText);
}

void tst_DMessageBox::texteNonSelectionnable()
{
    BoiteMontree const boite(AlerteExpliquee(u"Explication"_s, u"Note"_s));
    QList<QLabel *> const etiquettes = boite->findChildren<QLabel *>();
    QVERIFY(etiquettes.size() >= 2);
    for (QLabel const * const etiquette : etiquettes) {
        QCOMPARE(etiquette->textInteractionFlags(),
                 Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
        QVERIFY(!etiquette->openExternalLinks());
    }
}

void tst_DMessageBox::feuilleDeStyle_data()
{
    QTest::addColumn<QFont>("police");
    QFont points(u"Une Police"_s);
    points.setPointSizeF(9.5);
    QFont pixels(u"Une Police"_s);
    pixels.setPixelSize(17);
    QTest::newRow("in points") << points;
    QTest::newRow("in pixels") << pixels;
    QTest::newRow("the application's") << QApplication::font();
}

void tst_DMessageBox::feuilleDeStyle()
{
    QFETCH(QFont, police);
    QString const feuille = DDialogueAbs::DonneStyleSheet(police);
    QString const famille = u"font-family:\"%1\";"_s.arg(police.family().remove(u' '));
    QString const corps = u"font-size:%1px;"_s.arg(DonnePixels(police, 0.0));
    QCOMPARE(DonneRegles(feuille, u"QLabel#qt_msgbox_label"_s),
             u"background-color:transparent;color:#003399;"_s + famille +
                 u"font-size:%1px;"_s.arg(DonnePixels(police, 2.0)));
    QCOMPARE(DonneRegles(feuille, u"QLabel#qt_msgbox_informativelabel"_s), famille + corps);
    QCOMPARE(DonneRegles(feuille, u"QCheckBox#NePlusMAviser"_s), famille + corps);
    QVERIFY(feuille.contains(police.family()));
    QCOMPARE(feuille.count(u'{'), 3);
}

void tst_DMessageBox::feuilleSelonLaPoliceDeLApplication()
{
    QFont const ancienne = QApplication::font();
    QFont grande = ancienne;
    grande.setPointSizeF(ancienne.pointSizeF() + 6.0);
    QApplication::setFont(grande);
    QString feuille;
    QFont police;
    {
        BoiteMontree const boite(Alerte());
        feuille = boite->styleSheet();
        police = boite->font();
    }
    QString const attendue = DDialogueAbs::DonneStyleSheet(grande);
    QApplication::setFont(ancienne);
    QCOMPARE(feuille, attendue);
    QCOMPARE(police.pointSizeF(), grande.pointSizeF());
    QVERIFY(attendue != QString(DDialogueAbs::DonneStyleSheet(ancienne)));
}

void tst_DMessageBox::feuilleSelonLeModulateur()
{
    QFont police = QApplication::font();
    police.setPointSizeF(12.0);
    QString const avant = DDialogueAbs::DonneStyleSheet(police);
    ModulateurFont::Instance()->PrendsModulateur(0.5);
    QString const apres = DDialogueAbs::DonneStyleSheet(police);
    QVERIFY(avant != apres);
    QVERIFY(apres.contains(u"font-size: %1px"_s.arg(DonnePixels(police, 2.0))));
}

void tst_DMessageBox::centreeSurLeParent()
{
    QWidget parent;
    parent.setGeometry(150, 120, 500, 400);
    parent.show();
    BoiteMontree const boite(Alerte(), kBoutonOk, kBoutonOk, kBoutonOk, &parent);
    QPoint const ecart = boite->frameGeometry().center() - parent.frameGeometry().center();
    QVERIFY2(ecart.manhattanLength() <= 4, qPrintable(u"%1, %2"_s.arg(ecart.x()).arg(ecart.y())));
}

void tst_DMessageBox::sansCaseACocher()
{
    BoiteMontree const boite(Alerte());
    QVERIFY(!boite->CaseEstCochee());
    QVERIFY(!Case(*boite));
}

QTEST_MAIN(tst_DMessageBox)
#include "tst_DMessageBox.moc"
