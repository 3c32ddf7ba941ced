// noyau/plateforme/PlateformeBureauWin32.cpp
#include "noyau/plateforme/PlateformeBureau.h"

#include "noyau/plateforme/PlateformeBureauSysteme_p.h"
#include "noyau/plateforme/ReferenceComptay.h"
#include "noyau/plateforme/TypesWin32.h"

#include <QDesktopServices>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QOperatingSystemVersion>
#include <QProcess>
#include <QStringList>

#include <objbase.h>
#include <propsys.h>
#include <shlobj.h>
#include <wincred.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
wchar_t const * DonneTexte(QString const & texte)
{
    return reinterpret_cast<wchar_t const *>(texte.utf16());
}

QString DonneDossier(REFKNOWNFOLDERID identifiant)
{
    PWSTR texte = nullptr;
    QString dossier;
    if (SUCCEEDED(::SHGetKnownFolderPath(identifiant, KF_FLAG_DEFAULT, nullptr, &texte)))
        dossier = QString::fromWCharArray(texte);
    ::CoTaskMemFree(texte); // also after a failure
    return dossier;
}

// The links of the Start menu, the user's own first.
QStringList DonneLiens()
{
    QStringList liens;
    for (auto const * const identifiant : {&FOLDERID_StartMenu, &FOLDERID_CommonStartMenu}) {
        QString const dossier = DonneDossier(*identifiant);
        if (dossier.isEmpty())
            continue; // the iterator would take the current directory for it
        QDirIterator iterateur(dossier, {u"*.lnk"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (iterateur.hasNext())
            liens << iterateur.next();
    }
    return liens;
}

// The application identifier inside a link; empty without one.
QString DonneIdentifiantDuLien(QString const & lien)
{
    // System.AppUserModel.ID, here and not by its name: that one stands in a library which not
    // every compiler for Windows links.
    constexpr PROPERTYKEY kIdentifiant{
        {0x9f4c2855, 0x9f79, 0x4b39, {0xa8, 0xd0, 0xe1, 0xd4, 0x2d, 0xe1, 0xd5, 0xf3}}, 5};
    ReferenceComptay<IPropertyStore> proprietes;
    if (FAILED(::SHGetPropertyStoreFromParsingName(DonneTexte(QDir::toNativeSeparators(lien)),
                                                   nullptr, GPS_DEFAULT,
                                                   IID_PPV_ARGS(proprietes.Recois()))))
        return {};
    PROPVARIANT valeur{};
    QString identifiant;
    if (SUCCEEDED(proprietes->GetValue(kIdentifiant, &valeur)) && valeur.vt == VT_LPWSTR)
        identifiant = QString::fromWCharArray(valeur.pwszVal);
    ::PropVariantClear(&valeur);
    return identifiant;
}

bool UnLienPorteIdentifiant(QStringList const & liens, QString const & identifiant)
{
    // The window system of the desktop gives the GUI thread its apartment; others do not. One of
    // the other kind will do, so a refusal is none.
    HRESULT const appartement = ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    bool const trouvay =
        std::any_of(liens.cbegin(), liens.cend(), [&identifiant](QString const & lien) {
            return DonneIdentifiantDuLien(lien).compare(identifiant, Qt::CaseInsensitive) == 0;
        });
    if (SUCCEEDED(appartement))
        ::CoUninitialize();
    return trouvay;
}

bool UnLienPorteNom(QStringList const & liens, QString const & nom)
{
    return std::any_of(liens.cbegin(), liens.cend(), [&nom](QString const & lien) {
        return QFileInfo(lien).completeBaseName().compare(nom, Qt::CaseInsensitive) == 0;
    });
}

// True when the list of compatibility modes under this root names the executable.
bool ListeContient(HKEY racine, QString const & executable)
{
    constexpr auto kListe =
        L"Software\\Microsoft\\Windows NT\\CurrentVersion\\AppCompatFlags\\Layers";
    DWORD longueur = 0;
    LSTATUS const statut =
        ::RegGetValueW(racine, kListe, DonneTexte(QDir::toNativeSeparators(executable)),
                       RRF_RT_REG_SZ, nullptr, nullptr, &longueur);
    return statut == ERROR_SUCCESS && longueur > sizeof(wchar_t); // more than the final zero
}

class PlateformeBureauWin32 final : public PlateformeBureau
{
public:
    bool WindowsEstAuMoins(int majeure, int mineure, int numeroBuild) override
    {
        return QOperatingSystemVersion::current() >=
               QOperatingSystemVersion(QOperatingSystemVersion::Windows, majeure, mineure,
                                       numeroBuild);
    }

    // The name is that of the link's file. It comes first: for the identifier every link has to be
    // opened.
    bool RaccourciExiste(Raccourci const & raccourci) override
    {
        QStringList const liens = DonneLiens();
        return (!raccourci.nom.isEmpty() && UnLienPorteNom(liens, raccourci.nom)) ||
               (!raccourci.identifiantApplication.isEmpty() &&
                UnLienPorteIdentifiant(liens, raccourci.identifiantApplication));
    }

    bool PossedeAppCompatFlags(QString const & executable) override
    {
        return !executable.isEmpty() && (ListeContient(HKEY_CURRENT_USER, executable) ||
                                         ListeContient(HKEY_LOCAL_MACHINE, executable));
    }

    bool UtilisateurPeutExecuterElevay() override
    {
        HANDLE jeton = nullptr;
        if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &jeton))
            return false;
        TOKEN_ELEVATION_TYPE type = TokenElevationTypeDefault;
        DWORD longueur = 0;
        bool const lu =
            ::GetTokenInformation(jeton, TokenElevationType, &type, sizeof(type), &longueur);
        ::CloseHandle(jeton);
        // Full or limited: the user has two tokens, one of them an administrator's. Otherwise there
        // is only one, an administrator's where account control is off.
        return lu && (type != TokenElevationTypeDefault || ::IsUserAnAdmin());
    }

    std::optional<QByteArray> LisSecret(QString const & cle) override
    {
        PCREDENTIALW entree = nullptr;
        if (!::CredReadW(DonneTexte(cle), CRED_TYPE_GENERIC, 0, &entree))
            return ::GetLastError() == ERROR_NOT_FOUND ? std::optional(QByteArray()) : std::nullopt;
        QByteArray secret(reinterpret_cast<char const *>(entree->CredentialBlob),
                          static_cast<qsizetype>(entree->CredentialBlobSize));
        ::CredFree(entree);
        return secret;
    }

    bool EcrisSecret(QString const & cle, QByteArray const & secret) override
    {
        // The call takes pointers to what it does not change.
        QString nom = cle;
        QByteArray octets = secret;
        CREDENTIALW entree{};
        entree.Type = CRED_TYPE_GENERIC;
        entree.TargetName = reinterpret_cast<wchar_t *>(nom.data());
        entree.CredentialBlobSize = static_cast<DWORD>(octets.size());
        entree.CredentialBlob = reinterpret_cast<BYTE *>(octets.data());
        entree.Persist = CRED_PERSIST_LOCAL_MACHINE;
        return ::CredWriteW(&entree, 0);
    }

    bool OuvreExplorateur(QString const & chemin) override
    {
        QFileInfo const infos(chemin);
        if (!infos.exists())
            return false;
        if (infos.isDir())
            return QDesktopServices::openUrl(QUrl::fromLocalFile(chemin));
        // Opening a file would start the program that edits it: shows it in its folder instead. The
        // switch and the path are one argument, with its quotes inside.
        QProcess explorateur;
        explorateur.setProgram(u"explorer.exe"_s);
        explorateur.setNativeArguments(
            u"/select,\"%1\""_s.arg(QDir::toNativeSeparators(infos.absoluteFilePath())));
        return explorateur.startDetached();
    }

    bool OuvreUrl(QUrl const & url, QString const & fureteur) override
    {
        if (url.isEmpty() || !url.isValid())
            return false;
        if (fureteur.isEmpty())
            return QDesktopServices::openUrl(url);
        return QProcess::startDetached(fureteur, {url.toString(QUrl::FullyEncoded)});
    }
};
} // namespace

std::unique_ptr<PlateformeBureau> CreePlateformeBureauDuSysteme()
{
    return std::make_unique<PlateformeBureauWin32>();
}
