// search/tst_DialogueRechercherMessage.cpp
//
// What the dialog says when its host found nothing.
#include "search/EssaisDialogue.h"

#include "noyau/ExecutionSilencieuse.h"
#include "noyau/Traductions.h"

#include <QtTest>

using namespace EssaisDialogue;
using namespace Qt::StringLiterals;

namespace {

// The bubble on the screen, or null.
QWidget * Bulle()
{
    for (QWidget * const fenetre : QApplication::topLevelWidgets())
        if (fenetre->inherits("DAlerteEphemere"))
            return fenetre;
    return nullptr;
}

// What the bubble says; it goes with it.
QString TexteDit()
{
    QWidget * const bulle = Bulle();
    QString const texte = bulle ? bulle->accessibleName() : QString();
    delete bulle;
    return texte;
}

struct Message
{
    eLangue langue;
    char const * nomLangue;
    QStringList liste; // wrapping around, end reached, beginning reached
    QStringList texte;
};

QList<Message> Messages()
{
    QStringList const liste{u"Text not found in the list."_s,
                            u"Text not found; end of the list reached."_s,
                            u"Text not found; beginning of the list reached."_s};
    QStringList const texte{u"Text not found in the text."_s,
                            u"Text not found; end of the text reached."_s,
                            u"Text not found; beginning of the text reached."_s};
    return {
        {kLangueFrancais,
         "French",
         {u"Texte introuvable dans la liste."_s, u"Texte introuvable; fin de la liste atteinte."_s,
          u"Texte introuvable; début de la liste atteint."_s},
         {u"Texte introuvable dans le texte."_s, u"Texte introuvable; fin du texte atteinte."_s,
          u"Texte introuvable; début du texte atteint."_s}},
        {kLangueAnglais, "English", liste, texte},
        {kLangueAnglaisCanada, "Canadian English", liste, texte}};
}

// Which of the three texts an option word asks for.
int Rang(short options)
{
    if ((options & 0x004) != 0)
        return 0;
    return (options & 0x020) != 0 ? 1 : 2;
}

} // namespace

class tst_DialogueRechercherMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void textes_data();
    void textes();
    void parLesControles_data();
    void parLesControles();
    void avantToutGeste();
    void auDessusDuDialogue();
    void dialogueCachay();
    void silencieux();
};

void tst_DialogueRechercherMessage::cleanup()
{
    delete Bulle();
    ExecutionSilencieuse::Arrete();
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DialogueRechercherMessage::textes_data()
{
    QTest::addColumn<eLangue>("langue");
    QTest::addColumn<short>("options");
    QTest::addColumn<bool>("pourListe");
    QTest::addColumn<QString>("attendu");
    for (Message const & message : Messages())
        for (short const options :
             {0x000, 0x004, 0x010, 0x014, 0x020, 0x024, 0x030, 0x034, 0x3cb, 0x3eb, 0x3ef, 0x3ff})
            for (bool const pourListe : {true, false})
                QTest::addRow("%s, options %x, %s", message.nomLangue, unsigned(options),
                              pourListe ? "list" : "text")
                    << message.langue << options << pourListe
                    << (pourListe ? message.liste : message.texte).at(Rang(options));
}

void tst_DialogueRechercherMessage::textes()
{
    QFETCH(eLangue, langue);
    QFETCH(short, options);
    QFETCH(bool, pourListe);
    QFETCH(QString, attendu);
    Traductions::MetsLanguePourApplicationCourante(langue);
    DialogueRechercher dialogue(nullptr, false, 0);
    dialogue.PrendsOptions(options);
    dialogue.AfficheMessageTexteIntrouvable(pourListe);
    QCOMPARE(TexteDit(), attendu);
}

void tst_DialogueRechercherMessage::parLesControles_data()
{
    QTest::addColumn<short>("masque");
    QTest::addColumn<QList<QByteArray>>("clics");
    QTest::addColumn<int>("rang");
    QTest::newRow("wraps around") << kToutOffrir << QList<QByteArray>{} << 0;
    QTest::newRow("down to the end") << kToutOffrir << QList<QByteArray>{"CaseBoucler"} << 1;
    QTest::newRow("up to the beginning")
        << kToutOffrir << QList<QByteArray>{"CaseBoucler", "ChoixHaut"} << 2;
    QTest::newRow("nothing offered") << short(0) << QList<QByteArray>{} << 1;
    QTest::newRow("upward only") << short(0x010) << QList<QByteArray>{"ChoixHaut"} << 2;
}

void tst_DialogueRechercherMessage::parLesControles()
{
    QFETCH(short, masque);
    QFETCH(QList<QByteArray>, clics);
    QFETCH(int, rang);
    Banc banc(masque);
    QStringList dits;
    banc.hote.pendantUnAppel = [&banc, &dits](QString const &) {
        banc.dialogue->AfficheMessageTexteIntrouvable(false);
        dits << TexteDit();
    };
    for (QByteArray const & clic : clics)
        Clique(*banc.dialogue, clic);
    Clique(*banc.dialogue, "BoutonChercher");
    QCOMPARE(dits, QStringList{Messages().first().texte.at(rang)});
}

void tst_DialogueRechercherMessage::avantToutGeste()
{
    DialogueRechercher const dialogue(nullptr, false, kToutOffrir);
    dialogue.AfficheMessageTexteIntrouvable(false);
    QCOMPARE(TexteDit(), Messages().first().texte.at(2));
}

void tst_DialogueRechercherMessage::auDessusDuDialogue()
{
    QWidget parent;
    auto * const dialogue = new DialogueRechercher(&parent, true, kToutOffrir);
    dialogue->AfficheToi();
    dialogue->AfficheMessageTexteIntrouvable(true);
    QVERIFY(Bulle());
    QVERIFY(Bulle()->isVisible());
    QCOMPARE(Bulle()->parentWidget(), dialogue);
}

// A host may search on without the dialog: it is told over the document.
void tst_DialogueRechercherMessage::dialogueCachay()
{
    QWidget parent;
    auto * const dialogue = new DialogueRechercher(&parent, true, kToutOffrir);
    dialogue->AfficheMessageTexteIntrouvable(true);
    QVERIFY(Bulle());
    QCOMPARE(Bulle()->parentWidget(), &parent);
    delete Bulle();
    dialogue->showMinimized();
    dialogue->AfficheMessageTexteIntrouvable(false);
    QVERIFY(Bulle());
    QCOMPARE(Bulle()->parentWidget(), &parent);
    delete Bulle();
    DialogueRechercher const orphelin(nullptr, false, 0);
    orphelin.AfficheMessageTexteIntrouvable(true);
    QVERIFY(Bulle());
    QCOMPARE(Bulle()->parentWidget(), nullptr);
}

void tst_DialogueRechercherMessage::silencieux()
{
    ExecutionSilencieuse::Demarre();
    Banc const banc;
    banc.dialogue->AfficheMessageTexteIntrouvable(false);
    banc.dialogue->AfficheMessageTexteIntrouvable(true);
    QVERIFY(!Bulle());
    QVERIFY(banc.dialogue->isVisible()); // it asks nothing, so it has nothing to answer
}

QTEST_MAIN(tst_DialogueRechercherMessage)
#include "tst_DialogueRechercherMessage.moc"
