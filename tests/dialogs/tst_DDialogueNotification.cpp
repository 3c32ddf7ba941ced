// dialogs/tst_DDialogueNotification.cpp
#include "dialogs/BoutonsDialogue_p.h"
#include "dialogs/DAlerteNotification.h"
#include "dialogs/DDialogueNotification.h"
#include "noyau/Traductions.h"
#include "outils/BureauSimulay.h"
#include "outils/ToastsSimules.h"

#include <QtTest>

#include <thread>

using namespace DDialogue;
using namespace Qt::StringLiterals;
using namespace Toasts;

namespace {
constexpr auto kIdentifiant = "org.essai"_L1;

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

class tst_DDialogueNotification : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void peutUtiliser_data();
    void peutUtiliser();
    void sansCoucheLAfficheEchoue();
    void sansRaccourci();
    void raccourciJamaisMis();
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
    void appelsDansLOrdre();
    void chaqueAppelQuiEchoue();
    void chaqueAppelSansObjet_data();
    void chaqueAppelSansObjet();
    void succesPartiel();
    void modeleIncomplet_data();
    void modeleIncomplet();
    void reglage_data();
    void reglage();
    void references();
    void reponseDepuisUnAutreThread();
    void defautEtEchapSansEffet();

private:
    bool Affiche(int boutons, std::list<UniChaine> const & labels = {});
    bool AfficheAlerte(DAlerteInfo const & info, int boutons);
    QDomDocument DonneDocument() const { return mesToasts->DonneDocument(0); }

    BureauSimulay * monBureau = nullptr;
    ToastsSimules * mesToasts = nullptr;
    std::unique_ptr<QTemporaryDir> monDossier;
    QList<eBoutons> mesReponses;
};

void tst_DDialogueNotification::init()
{
    auto bureau = std::make_unique<BureauSimulay>();
    monBureau = bureau.get();
    monBureau->versionWindows = {10, 0, 19045};
    monBureau->raccourcis = QStringList{kIdentifiant};
    PlateformeBureau::Installe(std::move(bureau));
    auto toasts = std::make_unique<ToastsSimules>();
    mesToasts = toasts.get();
    PlateformeToasts::Installe(std::move(toasts));
    monDossier = std::make_unique<QTemporaryDir>();
    DAlerteNotification::MetsRaccourci({UniChaine(QString(kIdentifiant)), {}, {}, {}, {}});
    DAlerteNotification::MetsNomFichierSurDisque(UniChemin(monDossier->filePath(u"image.png"_s)));
    mesReponses.clear();
}

void tst_DDialogueNotification::cleanup()
{
    if (mesToasts) {
        mesToasts->Oublie();
        QCOMPARE(mesToasts->DonneNombreObjets(), 0);
    }
    PlateformeToasts::Installe(nullptr);
    PlateformeBureau::Installe(nullptr);
    DAlerteNotification::MetsIconeGenerale({});
    DAlerteNotification::MetsNomFichierSurDisque({});
    DAlerteNotification::MetsRaccourci({});
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

bool tst_DDialogueNotification::Affiche(int boutons, std::list<UniChaine> const & labels)
{
    return DDialogueNotification::Affiche(
        DAlerteInfo(DAlerteInfo::kNotification, UniChaine("message")), boutons, kBoutonOk,
        kBoutonAnnuler, labels, [this](eBoutons const & reponse) { mesReponses << reponse; });
}

bool tst_DDialogueNotification::AfficheAlerte(DAlerteInfo const & info, int boutons)
{
    return DDialogueNotification::Affiche(info, boutons, kBoutonOk, kBoutonOk, {}, {});
}

void tst_DDialogueNotification::peutUtiliser_data()
{
    QTest::addColumn<int>("majeure");
    QTest::addColumn<int>("mineure");
    QTest::addColumn<int>("build");
    QTest::addColumn<bool>("attendu");
    QTest::newRow("no Windows") << 0 << 0 << 0 << false;
    QTest::newRow("8.1") << 6 << 3 << 9600 << false;
    QTest::newRow("the first 10") << 10 << 0 << 0 << true;
    QTest::newRow("11") << 10 << 0 << 22000 << true;
}

void tst_DDialogueNotification::peutUtiliser()
{
    QFETCH(int, majeure);
    QFETCH(int, mineure);
    QFETCH(int, build);
    QFETCH(bool, attendu);
    monBureau->versionWindows = {majeure, mineure, build};
    QCOMPARE(DDialogueNotification::PeutUtiliserAPIToastNotification(), attendu);
    QVERIFY(mesToasts->DonneAppels().isEmpty());
}

void tst_DDialogueNotification::sansCoucheLAfficheEchoue()
{
#ifdef Q_OS_WIN
    QSKIP("This system has toasts.");
#endif
    mesToasts = nullptr;
    PlateformeToasts::Installe(nullptr);
    // The version alone decides.
    QVERIFY(DDialogueNotification::PeutUtiliserAPIToastNotification());
    QVERIFY(!Affiche(kBoutonOk));
}

void tst_DDialogueNotification::sansRaccourci()
{
    monBureau->raccourcis.clear();
    QVERIFY(!Affiche(kBoutonOk));
    QVERIFY(mesToasts->DonneAppels().isEmpty());
}

void tst_DDialogueNotification::raccourciJamaisMis()
{
    DAlerteNotification::MetsRaccourci({});
    QVERIFY(!Affiche(kBoutonOk));
    QVERIFY(mesToasts->DonneAppels().isEmpty());
}

void tst_DDialogueNotification::okSeul()
{
    QVERIFY(Affiche(kBoutonOk));
    QVERIFY(DonneDocument().elementsByTagName(u"actions"_s).isEmpty());
    QVERIFY(!DonneDocument().documentElement().hasAttribute(u"duration"_s));
    mesToasts->Active(0, {});
    QCOMPARE(mesReponses, QList{kBoutonAucun});
    QVERIFY(mesToasts->EstRetiray(0));
}

void tst_DDialogueNotification::deuxBoutons()
{
    QVERIFY(Affiche(kBoutonOk | kBoutonAnnuler));
    QCOMPARE(Attributs(DonneDocument(), u"arguments"_s),
             QStringList({u"kBoutonOk"_s, u"kBoutonAnnuler"_s}));
    QCOMPARE(DonneDocument().documentElement().attribute(u"duration"_s), u"long"_s);
    mesToasts->Active(0, u"kBoutonAnnuler"_s);
    QCOMPARE(mesReponses, QList{kBoutonAnnuler});
    QVERIFY(!mesToasts->EstRetiray(0));
}

// No action either, but only OK alone leaves the notification centre.
void tst_DDialogueNotification::aucunBouton()
{
    QVERIFY(Affiche(kBoutonAucun));
    QVERIFY(DonneDocument().elementsByTagName(u"actions"_s).isEmpty());
    QVERIFY(!DonneDocument().documentElement().hasAttribute(u"duration"_s));
    mesToasts->Ecarte(0, ToastDismissalReason_TimedOut);
    QVERIFY(!mesToasts->EstRetiray(0));
}

void tst_DDialogueNotification::chaqueBouton_data()
{
    QTest::addColumn<quint32>("bit");
    for (quint32 bit = kBoutonAnnuler; bit != 0; bit <<= 1) {
        QString const nom = BoutonsDialogue::DonneNom(static_cast<eBoutons>(bit));
        if (!nom.isEmpty())
            QTest::newRow(qPrintable(nom)) << bit;
    }
}

void tst_DDialogueNotification::chaqueBouton()
{
    QFETCH(quint32, bit);
    QVERIFY(Affiche(static_cast<int>(bit)));
    QString const nom = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(Attributs(DonneDocument(), u"arguments"_s), QStringList{nom});
    QCOMPARE(Attributs(DonneDocument(), u"activationType"_s), QStringList{u"foreground"_s});
    QCOMPARE(DonneDocument().documentElement().attribute(u"duration"_s), u"long"_s);
    mesToasts->Active(0, nom);
    QCOMPARE(mesReponses, QList{static_cast<eBoutons>(bit)});
}

void tst_DDialogueNotification::ordreDesActions()
{
    QVERIFY(Affiche(static_cast<int>(kBoutonMaisonElevee1 | kBoutonLien | kBoutonMaison5 |
                                     kBoutonMaison1 | kBoutonNon | kBoutonOk)));
    QCOMPARE(Attributs(DonneDocument(), u"arguments"_s),
             QStringList({u"kBoutonOk"_s, u"kBoutonNon"_s, u"kBoutonMaison1"_s, u"kBoutonMaison5"_s,
                          u"kBoutonLien"_s, u"kBoutonMaisonElevee1"_s}));
}

// Deliberate: those below the link make actions without text and name, those above make nothing.
void tst_DDialogueNotification::bitsNonAssignes()
{
    QVERIFY(Affiche(kBoutonOk | 8192 | 131072 | 0x00800000 | 0x40000000));
    QCOMPARE(Attributs(DonneDocument(), u"arguments"_s), QStringList({u"kBoutonOk"_s, {}, {}}));
    QCOMPARE(Attributs(DonneDocument(), u"content"_s).mid(1), QStringList({{}, {}}));
}

void tst_DDialogueNotification::textesDesBoutonsStandard_data()
{
    QTest::addColumn<int>("bouton");
    for (int bit = kBoutonOk; bit <= int(kBoutonIgnorer); bit <<= 1)
        QTest::newRow(qPrintable(BoutonsDialogue::DonneNom(static_cast<eBoutons>(bit)))) << bit;
}

void tst_DDialogueNotification::textesDesBoutonsStandard()
{
    QFETCH(int, bouton);
    QString attendu;
    {
        QMessageBox boite;
        auto const standard = BoutonsDialogue::DonneBoutonStandard(static_cast<eBoutons>(bouton));
        attendu = boite.addButton(standard)->text().remove(u'&');
    }
    QVERIFY(!attendu.isEmpty());
    QVERIFY(Affiche(bouton | kBoutonLien));
    QCOMPARE(Attributs(DonneDocument(), u"content"_s), QStringList({attendu, {}}));
}

void tst_DDialogueNotification::languesDesBoutons_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QStringList>("libelles");
    QTest::newRow("French") << int(kLangueFrancais) << QStringList{u"Continuer"_s, u"Essayer"_s};
    QTest::newRow("English") << int(kLangueAnglais) << QStringList{u"Continue"_s, u"Try"_s};
    QTest::newRow("Canada") << int(kLangueAnglaisCanada) << QStringList{u"Continue"_s, u"Try"_s};
}

void tst_DDialogueNotification::languesDesBoutons()
{
    QFETCH(int, langue);
    QFETCH(QStringList, libelles);
    Traductions::MetsLanguePourApplicationCourante(static_cast<eLangue>(langue));
    QVERIFY(Affiche(kBoutonContinuer | kBoutonEssayer));
    QCOMPARE(Attributs(DonneDocument(), u"content"_s), libelles);
}

void tst_DDialogueNotification::labels_data()
{
    QTest::addColumn<QStringList>("donnes");
    QTest::addColumn<QStringList>("attendus"); // 1 to 5, and the elevated first one
    QStringList const cinq{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s};
    QTest::newRow("five") << cinq << (cinq + QStringList{u"a"_s});
    QTest::newRow("more than five") << (cinq + QStringList{u"f"_s}) << (cinq + QStringList{u"a"_s});
    QTest::newRow("two") << cinq.mid(0, 2) << QStringList{u"a"_s, u"b"_s, {}, {}, {}, u"a"_s};
    QTest::newRow("none") << QStringList() << QStringList{{}, {}, {}, {}, {}, {}};
}

void tst_DDialogueNotification::labels()
{
    QFETCH(QStringList, donnes);
    QFETCH(QStringList, attendus);
    std::list<UniChaine> const liste(donnes.cbegin(), donnes.cend());
    QVERIFY(Affiche(static_cast<int>(kBoutonMaison1 | kBoutonMaison2 | kBoutonMaison3 |
                                     kBoutonMaison4 | kBoutonMaison5 | kBoutonMaisonElevee1),
                    liste));
    QCOMPARE(Attributs(DonneDocument(), u"content"_s), attendus);
}

void tst_DDialogueNotification::esperluettes_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("mnemonic") << u"&Quitter"_s << u"Quitter"_s;
    QTest::newRow("doubled") << u"Fish && chips"_s << u"Fish  chips"_s;
    QTest::newRow("at the end") << u"Recherche&"_s << u"Recherche"_s;
    QTest::newRow("nothing else") << u"&"_s << QString();
}

void tst_DDialogueNotification::esperluettes()
{
    QFETCH(QString, label);
    QFETCH(QString, attendu);
    QVERIFY(Affiche(kBoutonMaison1, {UniChaine(label)}));
    QCOMPARE(Attributs(DonneDocument(), u"content"_s), QStringList{attendu});
}

void tst_DDialogueNotification::structureDuDocument()
{
    QVERIFY(Affiche(kBoutonMaison1 | kBoutonMaison2, {UniChaine("un"), UniChaine("deux")}));
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

void tst_DDialogueNotification::textes_data()
{
    QTest::addColumn<int>("nombre");
    QTest::addColumn<QStringList>("attendus");
    QTest::newRow("no place") << 0 << QStringList();
    QTest::newRow("too few places stay empty") << 1 << QStringList{QString()};
    QTest::newRow("as many places") << 2 << QStringList{u"message"_s, u"explication"_s};
    QTest::newRow("the third stays empty")
        << 3 << QStringList{u"message"_s, u"explication"_s, QString()};
}

void tst_DDialogueNotification::textes()
{
    QFETCH(int, nombre);
    QFETCH(QStringList, attendus);
    mesToasts->modele = ModeleDeTextes(nombre);
    QVERIFY(AfficheAlerte(AlerteExpliquee(DAlerteInfo::kNotification, UniChaine("message"),
                                          UniChaine("note"), UniChaine("titre")),
                          kBoutonOk));
    QCOMPARE(Textes(DonneDocument()), attendus);
}

void tst_DDialogueNotification::caracteresReserves()
{
    QString const texte = u"<b>&\"é'\u2026</b>"_s;
    QVERIFY(AfficheAlerte(DAlerteInfo(DAlerteInfo::kNotification, UniChaine(texte)), kBoutonOk));
    QCOMPARE(Textes(DonneDocument()), QStringList({texte, {}, {}}));
}

// An empty one takes its place like the others.
void tst_DDialogueNotification::explicationDeLAlerte()
{
    QVERIFY(AfficheAlerte(AlerteExpliquee(DAlerteInfo::kNotification, {}), kBoutonOk));
    QCOMPARE(Textes(DonneDocument()), QStringList({{}, u"explication"_s, {}}));
}

void tst_DDialogueNotification::image_data()
{
    QTest::addColumn<QString>("chemin");
    QTest::newRow("slashes") << u"/home/essai/mon image.png"_s;
    QTest::newRow("backslashes") << u"C:\\Dossier\\image.png"_s;
    QTest::newRow("empty") << QString();
}

void tst_DDialogueNotification::image()
{
    QFETCH(QString, chemin);
    DAlerteNotification const alerte({}, UniChemin(chemin),
                                     {UniChaine(QString(kIdentifiant)), {}, {}, {}, {}}, {}, {});
    QVERIFY(AfficheAlerte(alerte, kBoutonOk));
    QCOMPARE(Source(DonneDocument()), u"file:///"_s + chemin);
}

void tst_DDialogueNotification::imageEcriteUneFois()
{
    QString const fichier = monDossier->filePath(u"image.png"_s);
    QPixmap image(4, 4);
    image.fill(Qt::red);
    DAlerteNotification::MetsIconeGenerale(image);
    QVERIFY(Affiche(kBoutonOk));
    image.fill(Qt::blue);
    DAlerteNotification::MetsIconeGenerale(image);
    QVERIFY(Affiche(kBoutonOk));
    QCOMPARE(QImage(fichier).pixelColor(1, 1), QColor(Qt::red));
    QCOMPARE(Source(DonneDocument()), u"file:///"_s + fichier);
}

void tst_DDialogueNotification::alerteDeNotification()
{
    monBureau->raccourcis = QStringList{u"org.autre"_s};
    QString const fichier = monDossier->filePath(u"autre.png"_s);
    DAlerteNotification const alerte({}, UniChemin(fichier),
                                     {UniChaine("org.autre"), UniChaine("Autre"), {}, {}, {}},
                                     UniChaine("message"), UniChaine("note"));
    QVERIFY(AfficheAlerte(alerte, kBoutonOk));
    QCOMPARE(mesToasts->DonneIdentifiant(0), u"org.autre"_s);
    QCOMPARE(Source(DonneDocument()), u"file:///"_s + fichier);
    QCOMPARE(Textes(DonneDocument()), QStringList({u"message"_s, {}, {}})); // and not the note
    QVERIFY(!QFile::exists(monDossier->filePath(u"image.png"_s)));
}

void tst_DDialogueNotification::appelsDansLOrdre()
{
    QVERIFY(Affiche(kBoutonOk | kBoutonAnnuler));
    QStringList const appels = mesToasts->DonneAppels();
    QCOMPARE(appels.mid(0, 2), QStringList({u"RoGetActivationFactory("
                                            "Windows.UI.Notifications.ToastNotificationManager)"_s,
                                            u"GetTemplateContent(3)"_s}));
    QCOMPARE(
        appels.mid(appels.indexOf("CreateToastNotifierWithId(org.essai)"_L1)),
        QStringList({u"CreateToastNotifierWithId(org.essai)"_s, u"get_Setting()"_s,
                     u"RoGetActivationFactory(Windows.UI.Notifications.ToastNotification)"_s,
                     u"CreateToastNotification()"_s, u"add_Activated()"_s, u"add_Dismissed()"_s,
                     u"add_Failed()"_s, u"QueryInterface(IToastNotification6)"_s,
                     u"put_ExpiresOnReboot(true)"_s, u"Show()"_s}));
    QVERIFY(mesToasts->ExpireAuRedemarrage(0));
}

// Whichever call fails, nothing is shown, nothing is kept, and the callback is the caller's.
void tst_DDialogueNotification::chaqueAppelQuiEchoue()
{
    QVERIFY(Affiche(kBoutonOk | kBoutonAnnuler));
    QStringList const appels = mesToasts->DonneAppels();
    QVERIFY(appels.size() > 40);
    auto const temoin = std::make_shared<int>(0);
    std::function<void(eBoutons const &)> const rappel = [temoin](eBoutons const &) { ++*temoin; };
    for (int rang = 0; rang < appels.size(); ++rang) {
        auto toasts = std::make_unique<ToastsSimules>();
        toasts->RepondsAppel(rang, E_FAIL);
        mesToasts = toasts.get();
        PlateformeToasts::Installe(std::move(toasts));
        bool const montray = DDialogueNotification::Affiche(
            DAlerteInfo(DAlerteInfo::kNotification, UniChaine("message")),
            kBoutonOk | kBoutonAnnuler, kBoutonOk, kBoutonAnnuler, {}, rappel);
        QByteArray const appel = appels.at(rang).toUtf8();
        QVERIFY2(!montray, appel);
        QCOMPARE(mesToasts->DonneNombreToasts(), 0);
        QVERIFY2(mesToasts->DonneNombreObjets() == 0, appel);
        QVERIFY2(temoin.use_count() == 2, appel); // the test's, and that of its own callback
    }
    QCOMPARE(*temoin, 0);
    rappel(kBoutonOk);
    QCOMPARE(*temoin, 1);
}

void tst_DDialogueNotification::chaqueAppelSansObjet_data()
{
    QTest::addColumn<QString>("appel");
    for (char const * const appel :
         {"RoGetActivationFactory", "GetTemplateContent", "GetElementsByTagName", "Item",
          "get_Attributes", "GetNamedItem", "CreateTextNode", "CreateElement", "QueryInterface",
          "CreateToastNotifierWithId", "CreateToastNotification"})
        QTest::newRow(appel) << QString::fromLatin1(appel);
}

void tst_DDialogueNotification::chaqueAppelSansObjet()
{
    QFETCH(QString, appel);
    mesToasts->RendsRien(appel);
    QVERIFY(!Affiche(kBoutonOk | kBoutonAnnuler));
    QCOMPARE(mesToasts->DonneNombreToasts(), 0);
}

// A success that says more than S_OK goes on; only the last one has to be exact.
void tst_DDialogueNotification::succesPartiel()
{
    mesToasts->Reponds(u"SetAttribute"_s, S_FALSE);
    mesToasts->Reponds(u"add_Activated"_s, S_FALSE);
    QVERIFY(Affiche(kBoutonOk | kBoutonAnnuler));
    mesToasts->Reponds(u"Show"_s, S_FALSE);
    QVERIFY(!Affiche(kBoutonOk | kBoutonAnnuler));
}

void tst_DDialogueNotification::modeleIncomplet_data()
{
    QTest::addColumn<QString>("modele");
    QTest::addColumn<bool>("montray");
    QTest::newRow("no image") << u"<toast><text id=\"1\"/></toast>"_s << false;
    QTest::newRow("image without a source") << u"<toast><image id=\"1\"/></toast>"_s << false;
    QTest::newRow("no toast to put the actions in")
        << u"<autre><image src=\"\"/></autre>"_s << false;
    QTest::newRow("what is needed") << u"<toast><image src=\"\"/></toast>"_s << true;
}

void tst_DDialogueNotification::modeleIncomplet()
{
    QFETCH(QString, modele);
    QFETCH(bool, montray);
    mesToasts->modele = modele;
    QCOMPARE(Affiche(kBoutonOk | kBoutonAnnuler), montray);
}

void tst_DDialogueNotification::reglage_data()
{
    QTest::addColumn<int>("reglage");
    QTest::addColumn<bool>("montray");
    QTest::newRow("enabled") << int(NotificationSetting_Enabled) << true;
    QTest::newRow("application") << int(NotificationSetting_DisabledForApplication) << false;
    QTest::newRow("user") << int(NotificationSetting_DisabledForUser) << false;
    QTest::newRow("group policy") << int(NotificationSetting_DisabledByGroupPolicy) << false;
    QTest::newRow("manifest") << int(NotificationSetting_DisabledByManifest) << false;
}

void tst_DDialogueNotification::reglage()
{
    QFETCH(int, reglage);
    QFETCH(bool, montray);
    mesToasts->reglage = static_cast<NotificationSetting>(reglage);
    QCOMPARE(Affiche(kBoutonOk), montray);
    QCOMPARE(mesToasts->DonneNombreToasts(), montray ? 1 : 0);
}

void tst_DDialogueNotification::references()
{
    QVERIFY(Affiche(kBoutonOk));
    QCOMPARE(mesToasts->DonneNombreObjets(), 2); // the toast, and the notifier of its handler
    mesToasts->Ecarte(0, ToastDismissalReason_UserCanceled);
    QCOMPARE(mesToasts->DonneNombreObjets(), 1);
    QCOMPARE(mesToasts->DonneAppels().count("~IToastNotifier"_L1), 1);
}

void tst_DDialogueNotification::reponseDepuisUnAutreThread()
{
    std::thread::id identifiant = std::this_thread::get_id();
    QVERIFY(DDialogueNotification::Affiche(
        DAlerteInfo(DAlerteInfo::kNotification, UniChaine("message")), kBoutonOk, kBoutonOk,
        kBoutonOk, {}, [&](eBoutons const &) { identifiant = std::this_thread::get_id(); }));
    mesToasts->Echoue(0);
    QVERIFY(identifiant != std::this_thread::get_id());
}

void tst_DDialogueNotification::defautEtEchapSansEffet()
{
    DAlerteInfo const info(DAlerteInfo::kNotification, UniChaine("message"));
    int const boutons = kBoutonOui | kBoutonNon;
    QVERIFY(DDialogueNotification::Affiche(info, boutons, kBoutonOui, kBoutonNon, {}, {}));
    QStringList const appels = mesToasts->DonneAppels();
    QVERIFY(DDialogueNotification::Affiche(info, boutons, kBoutonAide, kBoutonAucun, {}, {}));
    QCOMPARE(mesToasts->DonneAppels().mid(appels.size()), appels);
}

QTEST_MAIN(tst_DDialogueNotification)
#include "tst_DDialogueNotification.moc"
