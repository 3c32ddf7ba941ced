#include <FabrelGui/FabrelGui.h>
#include <FabrelNoyau/FabrelNoyau.h>

#include <cstdio>

int main()
{
    InitQApplication();
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    UniChaine const texte = TraductionGuiFormatay(TexteGui("Enlever «{1}»"), {UniChaine("été")});
    QString const couleur =
        ThemesQt::Instance()->AppliquerVariable(QStringLiteral("@couleurSeparateur"));
    std::printf("%s %s\n", texte.PreteUTF8(), qPrintable(couleur));
    ThemesQt::DetruisToi();
    ExecutionSilencieuse::Demarre();
    DAlerteInfo const alerte(DAlerteInfo::kInformation, UniChaine("Essai"));
    if (DAlerte(nullptr, alerte) != DDialogue::kBoutonOk)
        return 1;
    StockageReponse::LibereSingletons();
}
