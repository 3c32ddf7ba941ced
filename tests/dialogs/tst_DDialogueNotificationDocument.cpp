// tests/dialogs/tst_DDialogueNotificationDocument.cpp
#include "BancToasts.h"

#include "dialogs/BoutonsDialogue_p.h"
#include "noyau/Traductions.h"

#include <QtTest>

using namespace DDialogue;
using namespace Qt::StringLiterals;
using namespace Toasts;

namespace {
QString ModeleDeTextes(int nombre)
{
    QString textes;
    for (int i = 1; i <= nombre; ++i)
        textes += u"<text id=\"%1\"></text>"_s.arg(i);
    return u"<toast><visual><binding><image id=\"1\" src=\"\"/>%1</binding></visual></toast>"_s.arg(
        textes);
}

QStringList Attributs(QDomDocument const & document, QString const & attribut)
{
    QStringList valeurs;
    QDomNodeList const actions = document.elementsByTagName(u"action"_s);
    for (int i = 0; i < actions.size(); ++i)
        valeurs << actions.at(i).toElement().attribute(attribut, u"(none)"_s);
    return valeurs;
}

QStringList Textes(QDomDocument const & document)
{
    QStringList textes;
    QDomNodeList const elements = document.elementsByTagName(u"text"_s);
    for (int i = 0; i < elements.size(); ++i)
        textes << elements.at(i).toElement().text();
    return textes;
}

QString Source(QDomDocument const & document)
{
    return document.elementsByTagName(u"image"_s).at(0).toElement().attribute(u"src"_s);
}

class AlerteExpliquee : public DAlerteInfo
{
public:
    using DAlerteInfo::DAlerteInfo;
    UniChaine DonneExplication() const override { return UniChaine("explication"); }
};
} // namespace

class tst_DDialogueNotificationDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void okSeul();
    void deuxBoutons();
    void aucunBouton();
    void chaqueBouton_data();
    void chaqueBouton();
    void ordreDesActions();
    void bitsNonAssignes();
    void textesDesBoutonsStandard_data();
    void textesDesBoutonsStandard();
    void languesDesBoutons_data();
    void languesDesBoutons();
    void labels_data();
    void labels();
    void esperluettes_data();
    void esperluettes();
    void structureDuDocument();
    void textes_data();
    void textes();
    void caracteresReserves();
    void explicationDeLAlerte();
    void image_data();
    void image();
    void imageEcriteUneFois();
    void alerteDeNotification();
    void modeleIncomplet_data();
    void modeleIncomplet();

private:
    QDomDocument DonneDocument() const { return monBanc->toasts->DonneDocument(0); }

    std::unique_ptr<BancToasts> monBanc;
};

void tst_DDialogueNotificationDocument::init()
{
    monBanc = std::make_unique<BancToasts>();
}

void tst_DDialogueNotificationDocument::cleanup()
{
    monBanc->toasts->Oublie();
    QCOMPARE(monBanc->toasts->DonneNombreObjets(), 0);
    monBanc.reset();
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DDialogueNotificationDocument::okSeul()
{
    QVERIFY(monBanc->Affiche(kBoutonOk));
    QVERIFY(DonneDocument().elementsByTagName(u"actions"_s).isEmpty());
    QVERIFY(!DonneDocument().documentElement().hasAttribute(u"duration"_s));
    monBanc->toasts->Active(0, {});
    QCOMPARE(monBanc->reponses, QList{kBoutonAucun});
    QVERIFY(monBanc->toasts->EstRetiray(0));
}

void tst_DDialogueNotificationDocument::deuxBoutons()
{
    QVERIFY(monBanc->Affiche(kBoutonOk | kBoutonAnnuler));
    QCOMPARE(Attributs(DonneDocument(), u"arguments"_s),
             QStringList({u"kBoutonOk"_s, u"kBoutonAnnuler"_s}));
    QCOMPARE(DonneDocument().documentElement().attribute(u"duration"_s), u"long"_s);
    monBanc->toasts->Active(0, u"kBoutonAnnuler"_s);
    QCOMPARE(monBanc->reponses, QList{kBoutonAnnuler});
    QVERIFY(!monBanc->toasts->EstRetiray(0));
}

// No action either, but only OK alone leaves the notification centre.
void tst_DDialogueNotificationDocument::aucunBouton()
{
    QVERIFY(monBanc->Affiche(kBoutonAucun));
    QVERIFY(DonneDocument().elementsByTagName(u"actions"_s).isEmpty());
    QVERIFY(!DonneDocument().documentElement().hasAttribute(u"duration"_s));
    monBanc->toasts->Ecarte(0, ToastDismissalReason_TimedOut);
    QVERIFY(!monBanc->toasts->EstRetiray(0));
}

void tst_DDialogueNotificationDocument::chaqueBouton_data()
{
    QTest::addColumn<quint32>("bit");
    for (quint32 bit = kBoutonAnnuler; bit != 0; bit <<= 1) {
        QString const nom = BoutonsDialogue::DonneNom(static_cast<eBoutons>(bit));
        if (!nom.isEmpty())
            QTest::newRow(qPrintable(nom)) << bit;
    }
}

void tst_DDialogueNotificationDocument::chaqueBouton()
{
    QFETCH(quint32, bit);
    QVERIFY(monBanc->Affiche(static_cast<int>(bit)));
    QString const nom = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(Attributs(DonneDocument(), u"arguments"_s), QStringList{nom});
    QCOMPARE(Attributs(DonneDocument(), u"activationType"_s), QStringList{u"foreground"_s});
    QCOMPARE(DonneDocument().documentElement().attribute(u"duration"_s), u"long"_s);
    monBanc->toasts->Active(0, nom);
    QCOMPARE(monBanc->reponses, QList{static_cast<eBoutons>(bit)});
}

void tst_DDialogueNotificationDocument::ordreDesActions()
{
    QVERIFY(monBanc->Affiche(static_cast<int>(kBoutonMaisonElevee1 | kBoutonLien | kBoutonMaison5 |
                                              kBoutonMaison1 | kBoutonNon | kBoutonOk)));
    QCOMPARE(Attributs(DonneDocument(), u"arguments"_s),
             QStringList({u"kBoutonOk"_s, u"kBoutonNon"_s, u"kBoutonMaison1"_s, u"kBoutonMaison5"_s,
                          u"kBoutonLien"_s, u"kBoutonMaisonElevee1"_s}));
}

// Deliberate: those below the link make actions without text and name, those above make nothing.
void tst_DDialogueNotificationDocument::bitsNonAssignes()
{
    QVERIFY(monBanc->Affiche(kBoutonOk | 8192 | 131072 | 0x00800000 | 0x40000000));
    QCOMPARE(Attributs(DonneDocument(), u"arguments"_s), QStringList({u"kBoutonOk"_s, {}, {}}));
    QCOMPARE(Attributs(DonneDocument(), u"content"_s).mid(1), QStringList({{}, {}}));
}

void tst_DDialogueNotificationDocument::textesDesBoutonsStandard_data()
{
    QTest::addColumn<int>("bouton");
    for (int bit = kBoutonOk; bit <= int(kBoutonIgnorer); bit <<= 1)
        QTest::newRow(qPrintable(BoutonsDialogue::DonneNom(static_cast<eBoutons>(bit)))) << bit;
}

void tst_DDialogueNotificationDocument::textesDesBoutonsStandard()
{
    QFETCH(int, bouton);
    QString attendu;
    {
        QMessageBox boite;
        auto const standard = BoutonsDialogue::DonneBoutonStandard(static_cast<eBoutons>(bouton));
        attendu = boite.addButton(standard)->text().remove(u'&');
    }
    QVERIFY(!attendu.isEmpty());
    QVERIFY(monBanc->Affiche(bouton | kBoutonLien));
    QCOMPARE(Attributs(DonneDocument(), u"content"_s), QStringList({attendu, {}}));
}

void tst_DDialogueNotificationDocument::languesDesBoutons_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QStringList>("libelles");
    QTest::newRow("French") << int(kLangueFrancais) << QStringList{u"Continuer"_s, u"Essayer"_s};
    QTest::newRow("English") << int(kLangueAnglais) << QStringList{u"Continue"_s, u"Try"_s};
    QTest::newRow("Canada") << int(kLangueAnglaisCanada) << QStringList{u"Continue"_s, u"Try"_s};
}

void tst_DDialogueNotificationDocument::languesDesBoutons()
{
    QFETCH(int, langue);
    QFETCH(QStringList, libelles);
    Traductions::MetsLanguePourApplicationCourante(static_cast<eLangue>(langue));
    QVERIFY(monBanc->Affiche(kBoutonContinuer | kBoutonEssayer));
    QCOMPARE(Attributs(DonneDocument(), u"content"_s), libelles);
}

void tst_DDialogueNotificationDocument::labels_data()
{
    QTest::addColumn<QStringList>("donnes");
    QTest::addColumn<QStringList>("attendus"); // 1 to 5, and the elevated first one
    QStringList const cinq{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s};
    QTest::newRow("five") << cinq << (cinq + QStringList{u"a"_s});
    QTest::newRow("more than five") << (cinq + QStringList{u"f"_s}) << (cinq + QStringList{u"a"_s});
    QTest::newRow("two") << cinq.mid(0, 2) << QStringList{u"a"_s, u"b"_s, {}, {}, {}, u"a"_s};
    QTest::newRow("none") << QStringList() << QStringList{{}, {}, {}, {}, {}, {}};
}

void tst_DDialogueNotificationDocument::labels()
{
    QFETCH(QStringList, donnes);
    QFETCH(QStringList, attendus);
    std::list<UniChaine> const liste(donnes.cbegin(), donnes.cend());
    QVERIFY(
        monBanc->Affiche(static_cast<int>(kBoutonMaison1 | kBoutonMaison2 | kBoutonMaison3 |
                                          kBoutonMaison4 | kBoutonMaison5 | kBoutonMaisonElevee1),
                         liste));
    QCOMPARE(Attributs(DonneDocument(), u"content"_s), attendus);
}

void tst_DDialogueNotificationDocument::esperluettes_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("mnemonic") << u"&Quitter"_s << u"Quitter"_s;
    QTest::newRow("doubled") << u"Fish && chips"_s << u"Fish  chips"_s;
    QTest::newRow("at the end") << u"Recherche&"_s << u"Recherche"_s;
    QTest::newRow("nothing else") << u"&"_s << QString();
}

void tst_DDialogueNotificationDocument::esperluettes()
{
    QFETCH(QString, label);
    QFETCH(QString, attendu);
    QVERIFY(monBanc->Affiche(kBoutonMaison1, {UniChaine(label)}));
    QCOMPARE(Attributs(DonneDocument(), u"content"_s), QStringList{attendu});
}

void tst_DDialogueNotificationDocument::structureDuDocument()
{
    QVERIFY(
        monBanc->Affiche(kBoutonMaison1 | kBoutonMaison2, {UniChaine("un"), UniChaine("deux")}));
    QDomElement const toast = DonneDocument().documentElement();
    QCOMPARE(toast.tagName(), u"toast"_s);
    QCOMPARE(toast.attributes().size(), 1);
    QCOMPARE(toast.childNodes().size(), 2);
    QCOMPARE(toast.firstChildElement().tagName(), u"visual"_s);
    QDomElement const actions = toast.lastChildElement();
    QCOMPARE(actions.tagName(), u"actions"_s);
    QCOMPARE(actions.attributes().size(), 0);
    QCOMPARE(actions.childNodes().size(), 2);
    QDomElement const action = actions.firstChildElement();
    QCOMPARE(action.tagName(), u"action"_s);
    QCOMPARE(action.attributes().size(), 3);
    QCOMPARE(Attributs(DonneDocument(), u"content"_s), QStringList({u"un"_s, u"deux"_s}));
}

void tst_DDialogueNotificationDocument::textes_data()
{
    QTest::addColumn<int>("nombre");
    QTest::addColumn<QStringList>("attendus");
    QTest::newRow("no place") << 0 << QStringList();
    QTest::newRow("too few places stay empty") << 1 << QStringList{QString()};
    QTest::newRow("as many places") << 2 << QStringList{u"message"_s, u"explication"_s};
    QTest::newRow("the third stays empty")
        << 3 << QStringList{u"message"_s, u"explication"_s, QString()};
}

void tst_DDialogueNotificationDocument::textes()
{
    QFETCH(int, nombre);
    QFETCH(QStringList, attendus);
    monBanc->toasts->MetsModele(ModeleDeTextes(nombre));
    QVERIFY(monBanc->AfficheAlerte(AlerteExpliquee(DAlerteInfo::kNotification, UniChaine("message"),
                                                   UniChaine("note"), UniChaine("titre")),
                                   kBoutonOk));
    QCOMPARE(Textes(DonneDocument()), attendus);
}

void tst_DDialogueNotificationDocument::caracteresReserves()
{
    QString const texte = u"<b>&\"é'\u2026</b>"_s;
    QVERIFY(monBanc->AfficheAlerte(DAlerteInfo(DAlerteInfo::kNotification, UniChaine(texte)),
                                   kBoutonOk));
    QCOMPARE(Textes(DonneDocument()), QStringList({texte, {}, {}}));
}

// An empty one takes its place like the others.
void tst_DDialogueNotificationDocument::explicationDeLAlerte()
{
    QVERIFY(monBanc->AfficheAlerte(AlerteExpliquee(DAlerteInfo::kNotification, {}), kBoutonOk));
    QCOMPARE(Textes(DonneDocument()), QStringList({{}, u"explication"_s, {}}));
}

void tst_DDialogueNotificationDocument::image_data()
{
    QTest::addColumn<QString>("chemin");
    QTest::newRow("slashes") << u"/home/essai/mon image.png"_s;
    QTest::newRow("backslashes") << u"C:\\Dossier\\image.png"_s;
    QTest::newRow("empty") << QString();
}

void tst_DDialogueNotificationDocument::image()
{
    QFETCH(QString, chemin);
    DAlerteNotification const alerte({}, UniChemin(chemin),
                                     {UniChaine(BancToasts::kIdentifiant), {}, {}, {}, {}}, {}, {});
    QVERIFY(monBanc->AfficheAlerte(alerte, kBoutonOk));
    QCOMPARE(Source(DonneDocument()), u"file:///"_s + chemin);
}

void tst_DDialogueNotificationDocument::imageEcriteUneFois()
{
    QString const fichier = monBanc->DonneImage();
    QPixmap image(4, 4);
    image.fill(Qt::red);
    DAlerteNotification::MetsIconeGenerale(image);
    QVERIFY(monBanc->Affiche(kBoutonOk));
    image.fill(Qt::blue);
    DAlerteNotification::MetsIconeGenerale(image);
    QVERIFY(monBanc->Affiche(kBoutonOk));
    QCOMPARE(QImage(fichier).pixelColor(1, 1), QColor(Qt::red));
    QCOMPARE(Source(DonneDocument()), u"file:///"_s + fichier);
}

void tst_DDialogueNotificationDocument::alerteDeNotification()
{
    monBanc->bureau->raccourcis = QStringList{u"org.autre"_s};
    QString const fichier = monBanc->dossier.filePath(u"autre.png"_s);
    DAlerteNotification const alerte({}, UniChemin(fichier),
                                     {UniChaine("org.autre"), UniChaine("Autre"), {}, {}, {}},
                                     UniChaine("message"), UniChaine("note"));
    QVERIFY(monBanc->AfficheAlerte(alerte, kBoutonOk));
    QCOMPARE(monBanc->toasts->DonneIdentifiant(0), u"org.autre"_s);
    QCOMPARE(Source(DonneDocument()), u"file:///"_s + fichier);
    QCOMPARE(Textes(DonneDocument()), QStringList({u"message"_s, {}, {}})); // and not the note
    QVERIFY(!QFile::exists(monBanc->DonneImage()));
}

void tst_DDialogueNotificationDocument::modeleIncomplet_data()
{
    QTest::addColumn<QString>("modele");
    QTest::addColumn<bool>("montray");
    QTest::newRow("no image") << u"<toast><text id=\"1\"/></toast>"_s << false;
    QTest::newRow("image without a source") << u"<toast><image id=\"1\"/></toast>"_s << false;
    QTest::newRow("no toast to put the actions in")
        << u"<autre><image src=\"\"/></autre>"_s << false;
    QTest::newRow("what is needed") << u"<toast><image src=\"\"/></toast>"_s << true;
}

void tst_DDialogueNotificationDocument::modeleIncomplet()
{
    QFETCH(QString, modele);
    QFETCH(bool, montray);
    monBanc->toasts->MetsModele(modele);
    QCOMPARE(monBanc->Affiche(kBoutonOk | kBoutonAnnuler), montray);
}

QTEST_MAIN(tst_DDialogueNotificationDocument)
#include "tst_DDialogueNotificationDocument.moc"
