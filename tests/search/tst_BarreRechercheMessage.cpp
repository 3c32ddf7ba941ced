// tests/search/tst_BarreRechercheMessage.cpp
#include "search/PiecesBarre.h"

#include "dialogs/DAlerteEphemere_p.h"
#include "noyau/ExecutionSilencieuse.h"
#include "noyau/Traductions.h"

#include <QtTest>

#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

namespace {

QList<DAlerteEphemere *> Bulles()
{
    QList<DAlerteEphemere *> bulles;
    for (QWidget * const fenetre : QApplication::topLevelWidgets())
        if (auto * const bulle = qobject_cast<DAlerteEphemere *>(fenetre))
            bulles.append(bulle);
    return bulles;
}

// What a bubble says, without its mark-up.
QString DonneTexte(DAlerteEphemere const & bulle)
{
    QString texte;
    for (QLabel const * const etiquette : bulle.findChildren<QLabel *>())
        texte += QTextDocumentFragment::fromHtml(etiquette->text()).toPlainText();
    return texte;
}

} // namespace

class tst_BarreRechercheMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void message_data();
    void message();
    void silence();
    void bulleDuParent();
};

void tst_BarreRechercheMessage::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BarreRechercheMessage::message_data()
{
    QTest::addColumn<int>("options");
    QTest::addColumn<bool>("pourListe");
    QTest::addColumn<int>("langue");
    QTest::addColumn<QString>("texte");

    QString const autour[] = {u"Texte introuvable."_s, u"Texte introuvable dans la liste."_s};
    QString const fin[] = {u"Texte introuvable; fin du texte atteinte."_s,
                           u"Texte introuvable; fin de la liste atteinte."_s};
    QString const debut[] = {u"Texte introuvable; début du texte atteint."_s,
                             u"Texte introuvable; début de la liste atteint."_s};
    for (bool const liste : {false, true}) {
        for (int const options : {0x004, 0x024, 0x014, 0x034, 0x277})
            QTest::addRow("around, 0x%x, list %d", options, liste)
                << options << liste << int(kLangueFrancais) << autour[liste];
        for (int const options : {0x020, 0x030, 0x263})
            QTest::addRow("end, 0x%x, list %d", options, liste)
                << options << liste << int(kLangueFrancais) << fin[liste];
        for (int const options : {0x000, 0x010, 0x343})
            QTest::addRow("beginning, 0x%x, list %d", options, liste)
                << options << liste << int(kLangueFrancais) << debut[liste];
    }
    struct
    {
        int options;
        bool liste;
        QString texte;
    } const anglais[] = {
        {0x04, false, u"Text not found."_s},
        {0x04, true, u"Text not found in the list."_s},
        {0x20, false, u"Text not found; end of the text reached."_s},
        {0x20, true, u"Text not found; end of the list reached."_s},
        {0x10, false, u"Text not found; beginning of the text reached."_s},
        {0x10, true, u"Text not found; beginning of the list reached."_s},
    };
    for (auto const & [options, liste, texte] : anglais)
        for (eLangue const langue : {kLangueAnglais, kLangueAnglaisCanada})
            QTest::addRow("language %d, 0x%x, list %d", int(langue), options, liste)
                << options << liste << int(langue) << texte;
}

void tst_BarreRechercheMessage::message()
{
    QFETCH(int, options);
    QFETCH(bool, pourListe);
    QFETCH(int, langue);
    QFETCH(QString, texte);
    Traductions::MetsLanguePourApplicationCourante(eLangue(langue));
    auto const retour = qScopeGuard([] {
        qDeleteAll(Bulles());
        Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    });
    BarreRecherche barre;
    barre.PrendsOptions(short(options));

    static_cast<BarreRecherche const &>(barre).AfficheMessageTexteIntrouvable(pourListe);

    QCOMPARE(Bulles().size(), 1);
    QCOMPARE(DonneTexte(*Bulles().constFirst()), texte);
    QCOMPARE(barre.DonneOptions(), short(options));
}

void tst_BarreRechercheMessage::silence()
{
    ExecutionSilencieuse::Demarre();
    ExecutionSilencieuse::OublieDialoguesJournalises();
    auto const retour = qScopeGuard([] { ExecutionSilencieuse::Arrete(); });
    BarreRecherche barre;
    barre.AfficheMessageTexteIntrouvable(false);
    QVERIFY(Bulles().isEmpty());
    // A bubble makes nobody wait, so that a script need not hear of it.
    QVERIFY(ExecutionSilencieuse::DonneDialoguesJournalises().isEmpty());
}

void tst_BarreRechercheMessage::bulleDuParent()
{
    FenetreDeBarre essai;
    QVERIFY(essai.Montre());
    essai.barre->ModifieSensRecherche(CstRecherche::kVersLeHaut);
    essai.barre->AfficheMessageTexteIntrouvable(false);
    QCOMPARE(Bulles().size(), 1);
    DAlerteEphemere * const bulle = Bulles().constFirst();
    QCOMPARE(bulle->parentWidget(), &essai.fenetre);
    // The refresh has set the bit which hides that the beginning was reached.
    QCOMPARE(DonneTexte(*bulle), u"Texte introuvable."_s);
    delete bulle;
}

QTEST_MAIN(tst_BarreRechercheMessage)
#include "tst_BarreRechercheMessage.moc"
