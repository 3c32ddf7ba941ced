// galerie/LigneDeCommande.cpp
#include "LigneDeCommande.h"

#include "Affichage.h"
#include "Langues.h"
#include "Pages.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFont>
#include <QFontDatabase>
#include <QTemporaryFile>
#include <QTextStream>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kOptionCaptures("captures");
constexpr QLatin1StringView kOptionLangue("langue");
constexpr QLatin1StringView kOptionPage("page");
constexpr QLatin1StringView kOptionTexte("texte");

// In the offscreen platform's format. A position is taken as it stands, but a size is divided by
// the scale factor.
constexpr char kEcransCaptures[] = R"({
    "synchronousWindowSystemEvents": false,
    "windowFrameMargins": false,
    "screens": [
        { "name": "A", "x": 0, "y": 0, "width": %1, "height": %2,
          "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1 },
        { "name": "B", "x": 1920, "y": 312, "width": %3, "height": %4,
          "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1 }
    ]
})";

// Two screens side by side, the right one of a low resolution: the same at every scale.
QByteArray DonneEcransCaptures()
{
    bool compris = false;
    double const variable = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(&compris);
    double const echelle = compris && variable > 0 ? variable : 1.0;
    QString ecrans = QString::fromLatin1(kEcransCaptures);
    for (int const cote : {1920, 1080, 1024, 768})
        ecrans = ecrans.arg(qRound(cote * echelle));
    return ecrans.toLatin1();
}

std::unique_ptr<QCommandLineParser> CreeAnalyseur()
{
    auto analyseur = std::make_unique<QCommandLineParser>();
    analyseur->setApplicationDescription(u"The gallery of libFabrelGui."_s);
    analyseur->addHelpOption();
    analyseur->addOption({kOptionCaptures,
                          u"Renders every page to a picture, writes an index, and ends."_s,
                          u"directory"_s});
    QStringList codes;
    for (DescriptionLangue const & langue : DonneLangues())
        codes.append(langue.code);
    analyseur->addOption({kOptionLangue, u"Language at the start: %1."_s.arg(codes.join(u", "_s)),
                          u"language"_s, codes.first()});
    QStringList noms;
    for (DescriptionPage const & page : DonnePages())
        noms.append(page.nom);
    analyseur->addOption(
        {kOptionPage,
         u"Page to begin with, and the only one that is rendered: %1."_s.arg(noms.join(u", "_s)),
         u"page"_s});
    analyseur->addOption({kOptionTexte,
                          u"Text in UTF-8, plain or compressed by gzip, to search in; the window "
                          "begins with that page unless another is asked for."_s,
                          u"file"_s});
    return analyseur;
}

// -1 for no such page.
int DonneIndexPage(QString const & nom)
{
    auto const & pages = DonnePages();
    auto const page = std::find_if(pages.begin(), pages.end(),
                                   [&nom](auto const & candidate) { return candidate.nom == nom; });
    return page == pages.end() ? -1 : static_cast<int>(page - pages.begin());
}

// "-platform" and "-display", with one dash or two as Qt reads them, and what stands behind them.
void OteAffichage(int & argc, char ** argv)
{
    for (int i = 1; i < argc;) {
        QByteArray argument(argv[i]);
        if (argument.startsWith("--"))
            argument.remove(0, 1);
        if (i + 1 < argc && (argument == "-platform" || argument == "-display")) {
            std::copy(argv + i + 2, argv + argc + 1, argv + i); // with the null at the end
            argc -= 2;
        } else {
            ++i;
        }
    }
}

} // namespace

LigneDeCommande LisLigneDeCommande(int argc, char ** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    auto const analyseur = CreeAnalyseur();
    // Options of Qt, as -style, are unknown here: errors are told once the application has them.
    analyseur->parse(arguments);
    LigneDeCommande commande;
    commande.langue = DonneLangueDuCode(analyseur->value(kOptionLangue)).value_or(kLangueFrancais);
    commande.page = DonneIndexPage(analyseur->value(kOptionPage));
    commande.dossierCaptures = analyseur->value(kOptionCaptures);
    commande.texte = analyseur->value(kOptionTexte);
    if (commande.dossierCaptures.isEmpty() && !PeutAfficher(arguments))
        commande.dossierCaptures = u"galerie-captures"_s;
    // Pictures are of every page all the same.
    if (!commande.texte.isEmpty() && commande.page < 0 && commande.dossierCaptures.isEmpty())
        commande.page = DonneIndexPage(u"recherche"_s);
    return commande;
}

void VerifieLigneDeCommande(QApplication const & application)
{
    auto const analyseur = CreeAnalyseur();
    analyseur->process(application);
    QString erreur;
    if (!DonneLangueDuCode(analyseur->value(kOptionLangue)))
        erreur = u"Unknown language '%1'."_s.arg(analyseur->value(kOptionLangue));
    else if (analyseur->isSet(kOptionPage) && DonneIndexPage(analyseur->value(kOptionPage)) < 0)
        erreur = u"Unknown page '%1'."_s.arg(analyseur->value(kOptionPage));
    else if (analyseur->isSet(kOptionCaptures) && analyseur->value(kOptionCaptures).isEmpty())
        erreur = u"Empty directory name."_s;
    else if (analyseur->isSet(kOptionTexte) && analyseur->value(kOptionTexte).isEmpty())
        erreur = u"Empty file name."_s;
    else if (!analyseur->positionalArguments().isEmpty())
        erreur = u"Unexpected argument '%1'."_s.arg(analyseur->positionalArguments().first());
    if (erreur.isEmpty())
        return;
    QTextStream(stderr) << erreur << '\n';
    std::exit(EXIT_FAILURE);
}

void PrepareCaptures(LigneDeCommande const & commande, int & argc, char ** argv)
{
    if (commande.dossierCaptures.isEmpty())
        return;
    OteAffichage(argc, argv); // a platform there would win over the variable
    QByteArray plateforme = "offscreen";
    // Kept to the end: the application object reads it later.
    static QTemporaryFile ecrans;
    // A colon would end the name in the platform's arguments.
    if (ecrans.open() && !ecrans.fileName().contains(u':')) {
        ecrans.write(DonneEcransCaptures());
        ecrans.close();
        plateforme += ":configfile=" + QFile::encodeName(ecrans.fileName());
    }
    qputenv("QT_QPA_PLATFORM", plateforme);
}

void PreparePresentationCaptures(LigneDeCommande const & commande)
{
    if (commande.dossierCaptures.isEmpty())
        return;
    QApplication::setStyle(u"Fusion"_s);
    QApplication::setCursorFlashTime(0); // a caret that blinks would be in some pictures only
    if (QFontDatabase::hasFamily(u"DejaVu Sans"_s))
        QApplication::setFont(QFont(u"DejaVu Sans"_s, 9));
}
