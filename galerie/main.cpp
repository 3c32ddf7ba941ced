// galerie/main.cpp
#include "Captures.h"
#include "CtrlPriseEnMain.h"
#include "FenetreGalerie.h"
#include "LigneDeCommande.h"
#include "PageRecherche.h"
#include "ThemeGalerie.h"

#include "dialogs/StockageReponse.h"
#include "foundation/GeometrieEcran.h"
#include "foundation/Polices.h"
#include "foundation/ThemesQt.h"
#include "noyau/Traductions.h"
#include "style/DStyleProxy.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QStandardPaths>
#include <QStyleFactory>
#include <QTextStream>

namespace {

// Before the first alert whose answer may be remembered. Not for pictures, which shall be the same
// whatever was answered and seen before.
void NommeFichiers()
{
    QDir const dossier(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    StockageReponse::Initialise(DDialogue::StockeurParDefaut,
                                UniChaine(dossier.filePath(QStringLiteral("reponses.ini"))),
                                QSettings::IniFormat);
    StockageReponse::Initialise(DDialogue::StockeurNePlusMAviser,
                                UniChaine(dossier.filePath(QStringLiteral("ne-plus-m-aviser.ini"))),
                                QSettings::IniFormat);
    CtrlPriseEnMain::MetsFichier(dossier.filePath(QStringLiteral("prise-en-main.ini")));
}

// What the platform or the command line chose, Fusion where they name none.
QString DonneNomStyleDeBase()
{
    QString const nom = QApplication::style()->name();
    return QStyleFactory::keys().contains(nom, Qt::CaseInsensitive) ? nom
                                                                    : QStringLiteral("Fusion");
}

int Execute(ThemeGalerie & theme, LigneDeCommande const & commande)
{
    if (commande.dossierCaptures.isEmpty())
        NommeFichiers();
    if (!commande.texte.isEmpty()) {
        PageRecherche::PreteMemoire().fichier = commande.texte;
        PageRecherche::PreteMemoire().paquet.clear();
    }
    FenetreGalerie fenetre(theme);
    if (commande.page >= 0)
        fenetre.MontrePage(commande.page);
    if (commande.dossierCaptures.isEmpty()) {
        fenetre.resize(
            RoutinesFenetre::DonneTailleOptimaleFenetrePourEcran(QCursor::pos(), fenetre.size()));
        RoutinesGeneralesQt::CentreDansEcranActif(fenetre, false);
        fenetre.show();
        return QApplication::exec();
    }
    QDir const dossier(commande.dossierCaptures);
    if (!EcrisCaptures(fenetre, theme, dossier.path(), commande.page)) {
        QTextStream(stderr) << dossier.absolutePath() << ": could not write the pictures\n";
        return EXIT_FAILURE;
    }
    QTextStream(stdout) << dossier.absoluteFilePath(QStringLiteral("index.html")) << '\n';
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char ** argv)
{
    // 1. The library is loaded, on this thread, before main begins: its resources, its texts and
    // its idea of the GUI thread are in place.
    LigneDeCommande const commande = LisLigneDeCommande(argc, argv);
    PrepareCaptures(commande, argc, argv); // chooses the platform, so before the application object

    // 2. The application object.
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("fabrel-galerie"));
    VerifieLigneDeCommande(application);

    // 3. The language: texts looked up before this would be in the default one.
    Traductions::MetsLanguePourApplicationCourante(commande.langue);

    // 4. The style, before anything is built or measured with it: the library's over that of the
    // platform, so that windows look at home, but for pictures, which shall be the same everywhere.
    PreparePresentationCaptures(commande);
    QString const styleDeBase = DonneNomStyleDeBase();
    QApplication::setStyle(new DStyleProxy(QStyleFactory::create(styleDeBase)));

    // 5. The application's own theme variables, then the sheets that name them.
    ThemeGalerie theme(styleDeBase);
    theme.Reinitialise();

    int const resultat = theme.Applique() ? Execute(theme, commande) : EXIT_FAILURE;

    // 6. What the library keeps goes before the application object does.
    ThemesQt::DetruisToi();
    RoutinesGeneralesQt::ModulateurFont::LibereInstance();
    StockageReponse::LibereSingletons();
    return resultat;
}
