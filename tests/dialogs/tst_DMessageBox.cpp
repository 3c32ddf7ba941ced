// tests/dialogs/tst_DMessageBox.cpp
#include "EssaisBoites.h"

#include "dialogs/DAlerteInfoMaison.h"
#include "dialogs/DDialogueAbs.h"
#include "dialogs/StockageReponse.h"
#include "foundation/Polices.h"

#include "noyau/Traductions.h"

#include "outils/BureauSimulay.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QProxyStyle>
#include <QtTest>

using namespace DDialogue;
using namespace Qt::StringLiterals;

namespace {

DAlerteInfo Info(DAlerteInfo::eTypeDialogue type, QString const & message = u"Message"_s,
                 QString const & note = {}, QString const & titre = u"Titre"_s)
{
    return {type, message, note, titre};
}

class InfoExpliquee : public DAlerteInfo
{
public:
    InfoExpliquee(UniChaine const & explication, UniChaine const & note)
        : DAlerteInfo(kQuestion, UniChaine("Message"), note, UniChaine("Titre"))
        , monExplication(explication)
    {
    }
    UniChaine DonneExplication() const override { return monExplication; }

private:
    UniChaine monExplication;
};

QLabel * DonneEtiquette(DMessageBox const & boite, char const * nom)
{
    return boite.findChild<QLabel *>(QString::fromLatin1(nom));
}

} // namespace

class tst_DMessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void icone_data();
    void icone();
    void iconeMaison();
    void maisonSansImage();
    void titre_data();
    void titre();
    void texteDessous_data();
    void texteDessous();
    void texteRiche();
    void iconeDeFenetre();
    void feuille();
    void feuilleDeLaBoite();
    void feuilleSelonLeModulateur();
    void texteNonSelectionnable();
    void texteNonSelectionnableApresUnChangementDeStyle();
    void doneNeFaitRien();
    void resultatEtSignaux_data();
    void resultatEtSignaux();
    void reponseConnueConvertie_data();
    void reponseConnueConvertie();
    void sansBoutonChoisi();
    void accessible();
    void placeSurLeParent();

private:
    DMessageBox * Montre(DAlerteInfo const & info, int boutons = kBoutonOk,
                         eBoutons echap = kBoutonOk);

    QWidget monParent;
    QList<eBoutons> mesReponses;
};

void tst_DMessageBox::init()
{
    mesReponses.clear();
}

void tst_DMessageBox::cleanup()
{
    if (DMessageBox * const boite = DonneBoiteVisible())
        boite->PriseResultat(QVariant::fromValue(kBoutonAucun));
    QTRY_COMPARE(QApplication::topLevelWidgets().size(), 1); // the parent
    StockageReponse::LibereSingletons();
}

DMessageBox * tst_DMessageBox::Montre(DAlerteInfo const & info, int boutons, eBoutons echap)
{
    DAlerte(&monParent, info, boutons, kBoutonOk, echap, std::list<UniChaine>(),
            [this](eBoutons const & reponse) { mesReponses.append(reponse); });
    return DonneBoiteVisible();
}

void tst_DMessageBox::icone_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QMessageBox::Icon>("icone");
    QTest::newRow("question") << 1 << QMessageBox::Question;
    QTest::newRow("information") << 2 << QMessageBox::Information;
    QTest::newRow("warning") << 3 << QMessageBox::Warning;
    QTest::newRow("error") << 4 << QMessageBox::Critical;
    QTest::newRow("notification without toast") << 6 << QMessageBox::Warning;
    QTest::newRow("custom, without an image") << 8 << QMessageBox::NoIcon;
    QTest::newRow("plain") << 9 << QMessageBox::NoIcon;
    QTest::newRow("below all types") << 0 << QMessageBox::NoIcon;
    QTest::newRow("unknown") << 42 << QMessageBox::NoIcon;
}

void tst_DMessageBox::icone()
{
    QFETCH(int, type);
    QFETCH(QMessageBox::Icon, icone);
    DMessageBox const * const boite = Montre(Info(static_cast<DAlerteInfo::eTypeDialogue>(type)));
    QVERIFY(boite);
    QCOMPARE(boite->icon(), icone);
    QCOMPARE(boite->iconPixmap().isNull(), icone == QMessageBox::NoIcon);
}

void tst_DMessageBox::iconeMaison()
{
    QPixmap image(64, 64);
    image.fill(Qt::red);
    DAlerteInfoMaison const info(image, UniChaine("Message"), UniChaine("Note"),
                                 UniChaine("Titre"));
    DMessageBox const * const boite = Montre(info);
    QCOMPARE(boite->iconPixmap().deviceIndependentSize(), QSizeF(32, 32));
    QCOMPARE(boite->iconPixmap().toImage().pixelColor(16, 16), QColor(Qt::red));
    QCOMPARE(boite->informativeText(), u" Note"_s);
    QCOMPARE(boite->windowTitle(), u"Titre"_s);
}

void tst_DMessageBox::maisonSansImage()
{
    DMessageBox const * const boite = Montre(Info(DAlerteInfo::kMaison));
    QVERIFY(boite->iconPixmap().isNull());
    QVERIFY(!DonneEtiquette(*boite, "qt_msgboxex_icon_label")->isVisible());
}

void tst_DMessageBox::titre_data()
{
    QTest::addColumn<bool>("avecParent");
    QTest::addColumn<QString>("titre");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("its own") << true << u"Titre"_s << u"Titre"_s;
    QTest::newRow("the parent's instead of the default") << true << QString() << u"Parent"_s;
    QTest::newRow("the default without a parent")
        << false << QString() << QGuiApplication::applicationDisplayName();
    QTest::newRow("its own without a parent") << false << u"Titre"_s << u"Titre"_s;
}

void tst_DMessageBox::titre()
{
    QFETCH(bool, avecParent);
    QFETCH(QString, titre);
    QFETCH(QString, attendu);
    monParent.setWindowTitle(u"Parent"_s);
    DAlerte(avecParent ? &monParent : nullptr,
            Info(DAlerteInfo::kQuestion, u"Message"_s, {}, titre), kBoutonOk, kBoutonOk, kBoutonOk,
            [](eBoutons const &) {});
    QCOMPARE(DonneBoiteVisible()->windowTitle(), attendu);
}

void tst_DMessageBox::texteDessous_data()
{
    QTest::addColumn<QString>("explication");
    QTest::addColumn<QString>("note");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("nothing") << QString() << QString() << QString();
    QTest::newRow("an explanation") << u"Explication."_s << QString() << u"Explication."_s;
    QTest::newRow("both, a blank between")
        << u"Explication."_s << u"Note."_s << u"Explication. Note."_s;
    QTest::newRow("a note alone keeps the blank") << QString() << u"Note."_s << u" Note."_s;
}

void tst_DMessageBox::texteDessous()
{
    QFETCH(QString, explication);
    QFETCH(QString, note);
    QFETCH(QString, attendu);
    DMessageBox const * const boite = Montre(InfoExpliquee(explication, note));
    QCOMPARE(boite->text(), u"Message"_s);
    QCOMPARE(boite->informativeText(), attendu);
}

void tst_DMessageBox::texteRiche()
{
    DAlerteInfo info = Info(DAlerteInfo::kQuestion, u"a &lt; b"_s);
    QCOMPARE(Montre(info)->textFormat(), Qt::AutoText);
    cleanup();
    info.texteRiche = true;
    QCOMPARE(Montre(info)->textFormat(), Qt::RichText);
}

void tst_DMessageBox::iconeDeFenetre()
{
    QVERIFY(QApplication::windowIcon().isNull());
    QCOMPARE(Montre(Info(DAlerteInfo::kQuestion))->windowIcon().pixmap(16, 16).toImage(),
             QIcon(u":/Images/IconeBarreTitreDefautLibFabrelGui.png"_s).pixmap(16, 16).toImage());
    cleanup();
    QPixmap image(16, 16);
    image.fill(Qt::green);
    monParent.setWindowIcon(image); // an icon that it has already stays
    QCOMPARE(Montre(Info(DAlerteInfo::kQuestion))->windowIcon().pixmap(16, 16).toImage(),
             QIcon(image).pixmap(16, 16).toImage());
    monParent.setWindowIcon({});
}

void tst_DMessageBox::feuille()
{
    auto const * const modulateur = RoutinesGeneralesQt::ModulateurFont::Instance();
    QFont font(u"Sans Une Police"_s, 10);
    QString const message =
        QString::number(modulateur->DonneFontPointVersPixelsAvecDiff(font, 2.0).pixelSize());
    QString const corps =
        QString::number(modulateur->DonneFontPointVersPixelsAvecDiff(font, 0.0).pixelSize());
    QVERIFY(message != corps);
    QString const police = u"font-family: \"Sans Une Police\"; "_s;
    QCOMPARE(QString(DDialogueAbs::DonneStyleSheet(font)).simplified(),
             u"QLabel#qt_msgbox_label { background-color: transparent; color: #003399; "_s +
                 police + u"font-size: "_s + message +
                 u"px; } QLabel#qt_msgbox_informativelabel { "_s + police + u"font-size: "_s +
                 corps + u"px; } QCheckBox#NePlusMAviser { "_s + police + u"font-size: "_s + corps +
                 u"px; }"_s);
    font.setFamily(u"%1 %2"_s); // a family is text, not a place of the template
    QVERIFY(QString(DDialogueAbs::DonneStyleSheet(font)).contains(u"font-family: \"%1 %2\";"_s));
}

void tst_DMessageBox::feuilleDeLaBoite()
{
    QFont const font = QApplication::font();
    monParent.setFont(QFont(font.family(), font.pointSize() + 7)); // not the box's
    DMessageBox const * const boite = Montre(InfoExpliquee(UniChaine("Explication"), {}));
    monParent.setFont({});
    QCOMPARE(boite->styleSheet(), QString(DDialogueAbs::DonneStyleSheet(font)));
    auto const * const message = DonneEtiquette(*boite, "qt_msgbox_label");
    auto const * const dessous = DonneEtiquette(*boite, "qt_msgbox_informativelabel");
    QVERIFY(message->font().pixelSize() > dessous->font().pixelSize());
    QCOMPARE(message->palette().color(QPalette::WindowText), QColor(0x00, 0x33, 0x99));
}

void tst_DMessageBox::feuilleSelonLeModulateur()
{
    using RoutinesGeneralesQt::ModulateurFont;
    QFont const font(u"Sans"_s, 12);
    ModulateurFont::Instance()->PrendsModulateur(0.5);
    QString const feuille = DDialogueAbs::DonneStyleSheet(font);
    int const pixels =
        ModulateurFont::Instance()->DonneFontPointVersPixelsAvecDiff(font, 2.0).pixelSize();
    ModulateurFont::LibereInstance();
    QVERIFY(feuille != QString(DDialogueAbs::DonneStyleSheet(font)));
    QVERIFY(feuille.contains(u"font-size: %1px"_s.arg(pixels)));
}

void tst_DMessageBox::texteNonSelectionnable()
{
    DMessageBox const * const boite = Montre(InfoExpliquee(UniChaine("<a href='1'>un</a>"), {}));
    auto const etiquettes = boite->findChildren<QLabel *>();
    QCOMPARE(etiquettes.size(), 3);
    for (QLabel const * const etiquette : etiquettes) {
        QCOMPARE(etiquette->textInteractionFlags(),
                 Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
        QVERIFY(!etiquette->openExternalLinks());
    }
}

void tst_DMessageBox::texteNonSelectionnableApresUnChangementDeStyle()
{
    DMessageBox * const boite = Montre(InfoExpliquee(UniChaine("Explication"), {}));
    boite->setStyleSheet(boite->styleSheet() + u"QLabel { margin: 1px; }"_s);
    QProxyStyle style;
    boite->setStyle(&style);
    for (QLabel const * const etiquette : boite->findChildren<QLabel *>())
        QCOMPARE(etiquette->textInteractionFlags(),
                 Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    boite->setStyle(nullptr);
}

void tst_DMessageBox::doneNeFaitRien()
{
    DMessageBox * const boite = Montre(Info(DAlerteInfo::kQuestion));
    QSignalSpy fini(boite, &QDialog::finished);
    boite->done(QDialog::Accepted);
    boite->accept();
    QVERIFY(boite->isVisible());
    QCOMPARE(fini.count(), 0);
    QVERIFY(mesReponses.isEmpty());
}

void tst_DMessageBox::resultatEtSignaux_data()
{
    QTest::addColumn<int>("sortie");
    QTest::addColumn<eBoutons>("attendu");
    QTest::newRow("a click") << 0 << kBoutonOui;
    QTest::newRow("Return presses the default") << 1 << kBoutonOk;
    QTest::newRow("Escape presses the escape button") << 2 << kBoutonNon;
    QTest::newRow("closing the window, the escape button") << 3 << kBoutonNon;
}

void tst_DMessageBox::resultatEtSignaux()
{
    QFETCH(int, sortie);
    QFETCH(eBoutons, attendu);
    DMessageBox * const boite =
        Montre(Info(DAlerteInfo::kQuestion), kBoutonOk | kBoutonOui | kBoutonNon, kBoutonNon);
    QStringList ordre;
    connect(boite, &DMessageBox::SignalEnFermeture, boite, [&](eBoutons reponse) {
        ordre << u"closing %1 %2 %3"_s.arg(reponse).arg(boite->isVisible()).arg(mesReponses.size());
    });
    connect(boite, &QDialog::finished, boite,
            [&](int resultat) { ordre << u"finished %1"_s.arg(resultat); });
    switch (sortie) {
    case 0:
        QTest::mouseClick(boite->button(QMessageBox::Yes), Qt::LeftButton);
        break;
    case 1:
        QTest::keyClick(boite, Qt::Key_Return);
        break;
    case 2:
        QTest::keyClick(boite, Qt::Key_Escape);
        break;
    default:
        QVERIFY(boite->close());
        break;
    }
    QCOMPARE(mesReponses, QList{attendu});
    // The receiver has heard the answer while the box was still there, and it ends only once.
    QCOMPARE(ordre, (QStringList{u"closing %1 1 1"_s.arg(attendu), u"finished %1"_s.arg(attendu)}));
    QCOMPARE(boite->result(), static_cast<int>(attendu));
    QVERIFY(!boite->isVisible());
}

void tst_DMessageBox::reponseConnueConvertie_data()
{
    QTest::addColumn<QVariant>("valeur");
    QTest::addColumn<eBoutons>("attendu");
    QTest::newRow("its own type") << QVariant::fromValue(kBoutonNon) << kBoutonNon;
    QTest::newRow("an integer") << QVariant(int(kBoutonOui)) << kBoutonOui;
    QTest::newRow("an unsigned integer") << QVariant(0x80000000U) << kBoutonMaisonElevee1;
    QTest::newRow("what is no number") << QVariant(QPoint(1, 2)) << kBoutonAucun;
    QTest::newRow("nothing") << QVariant() << kBoutonAucun;
}

void tst_DMessageBox::reponseConnueConvertie()
{
    QFETCH(QVariant, valeur);
    QFETCH(eBoutons, attendu);
    DMessageBox * const boite = Montre(Info(DAlerteInfo::kQuestion));
    QVERIFY(QMetaType::fromName("DDialogue::eBoutons").isValid());
    Q_EMIT boite->SignalDejaRepondu(valeur);
    QVERIFY(mesReponses.isEmpty()); // it comes by the event loop
    QTRY_COMPARE(mesReponses, QList{attendu});
}

void tst_DMessageBox::sansBoutonChoisi()
{
    DMessageBox * boite = Montre(Info(DAlerteInfo::kQuestion));
    boite->PriseBoutonCliquay(nullptr);
    QCOMPARE(mesReponses, QList{kBoutonAnnuler});
    cleanup();
    mesReponses.clear();
    boite = Montre(Info(DAlerteInfo::kQuestion));
    QPushButton etranger;
    boite->PriseBoutonCliquay(&etranger);
    QCOMPARE(mesReponses, QList{kBoutonAucun});
    mesReponses.clear();
    boite = Montre(Info(DAlerteInfo::kQuestion), kBoutonOui, kBoutonNon);
    boite->reject(); // no button of the box is the escape button
    QCOMPARE(mesReponses, QList{kBoutonAnnuler});
}

void tst_DMessageBox::accessible()
{
    DAlerteInfo info = Info(DAlerteInfo::kQuestion, u"<b>Gras</b> &amp; fin"_s, u"Note"_s);
    info.texteRiche = true;
    DMessageBox * const boite = Montre(info);
    QAccessibleInterface * const lu = QAccessible::queryAccessibleInterface(boite);
    QVERIFY(lu);
    QCOMPARE(lu->text(QAccessible::Name), u"Titre"_s);
    QCOMPARE(lu->text(QAccessible::Description), u"Gras & fin\nNote"_s);
}

void tst_DMessageBox::placeSurLeParent()
{
    monParent.setGeometry(100, 80, 500, 400);
    monParent.show();
    DMessageBox const * const boite = Montre(Info(DAlerteInfo::kQuestion));
    QPoint const ecart = boite->frameGeometry().center() - monParent.frameGeometry().center();
    // The frame of the box is not known yet when it is placed.
    QVERIFY(ecart.manhattanLength() <= 8);
    monParent.hide();
}

QTEST_MAIN(tst_DMessageBox)
#include "tst_DMessageBox.moc"
