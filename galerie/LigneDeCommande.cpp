// galerie/LigneDeCommande.cpp
#include "LigneDeCommande.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFont>
#include <QFontDatabase>
#include <QTemporaryFile>
#include <QTextStream>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kOptionCaptures("captures");
constexpr QLatin1StringView kOptionLangue("langue");

// Two screens side by side, the right one of a low resolution, in the offscreen platform's format.
constexpr char kEcransCaptures[] = R"({
    "synchronousWindowSystemEvents": false,
    "windowFrameMargins": false,
    "screens": [
        { "name": "A", "x": 0, "y": 0, "width": 1920, "height": 1080,
          "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1 },
        { "name": "B", "x": 1920, "y": 312, "width": 1024, "height": 768,
          "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1 }
    ]
})";

std::unique_ptr<QCommandLineParser> CreeAnalyseur()
{
    auto analyseur = std::make_unique<QCommandLineParser>();
    analyseur->setApplicationDescription(u"The gallery of libFabrelGui."_s);
    analyseur->addHelpOption();
    analyseur->addOption({kOptionCaptures,
                          u"Renders every page to a picture, writes an index, and ends."_s,
                          u"directory"_s});
    analyseur->addOption(
        {kOptionLangue, u"Language at the start: fr, en or en_CA."_s, u"language"_s, u"fr"_s});
    return analyseur;
}

std::optional<eLangue> LisLangue(QString const & nom)
{
    if (nom == u"fr")
        return kLangueFrancais;
    if (nom == u"en")
        return kLangueAnglais;
    if (nom == u"en_CA")
        return kLangueAnglaisCanada;
    return std::nullopt;
}

bool ManqueEcran()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    QByteArray const plateforme = qgetenv("QT_QPA_PLATFORM");
    bool const veutServeur =
        plateforme.isEmpty() || plateforme.startsWith("xcb") || plateforme.startsWith("wayland");
    return veutServeur && qEnvironmentVariableIsEmpty("DISPLAY") &&
           qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return false;
#endif
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
    commande.langue = LisLangue(analyseur->value(kOptionLangue)).value_or(kLangueFrancais);
    commande.dossierCaptures = analyseur->value(kOptionCaptures);
    if (commande.dossierCaptures.isEmpty() && ManqueEcran())
        commande.dossierCaptures = u"galerie-captures"_s;
    return commande;
}

void VerifieLigneDeCommande(QApplication const & application)
{
    auto const analyseur = CreeAnalyseur();
    analyseur->process(application);
    QString erreur;
    if (!LisLangue(analyseur->value(kOptionLangue)))
        erreur = u"Unknown language '%1'."_s.arg(analyseur->value(kOptionLangue));
    else if (analyseur->isSet(kOptionCaptures) && analyseur->value(kOptionCaptures).isEmpty())
        erreur = u"Empty directory name."_s;
    else if (!analyseur->positionalArguments().isEmpty())
        erreur = u"Unexpected argument '%1'."_s.arg(analyseur->positionalArguments().first());
    if (erreur.isEmpty())
        return;
    QTextStream(stderr) << erreur << '\n';
    std::exit(EXIT_FAILURE);
}

void PrepareCaptures(LigneDeCommande const & commande)
{
    if (commande.dossierCaptures.isEmpty())
        return;
    QByteArray plateforme = "offscreen";
    // Kept to the end: the application object reads it later.
    static QTemporaryFile ecrans;
    // A colon would end the name in the platform's arguments.
    if (ecrans.open() && !ecrans.fileName().contains(u':')) {
        ecrans.write(kEcransCaptures);
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
