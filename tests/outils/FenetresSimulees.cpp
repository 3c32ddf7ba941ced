// tests/outils/FenetresSimulees.cpp
#include "outils/FenetresSimulees.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {
HWND DonnePoignee(quintptr numero)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number that nobody dereferences
    return reinterpret_cast<HWND>(numero);
}

HMONITOR DonneMoniteur(std::size_t rang)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number that nobody dereferences
    return reinterpret_cast<HMONITOR>(rang + 1);
}

QString Hexa(quint64 valeur)
{
    return u"0x"_s + QString::number(valeur, 16);
}
} // namespace

FenetresSimulees::FenetresSimulees()
    : bureau(DonnePoignee(1))
{
}

HWND FenetresSimulees::Ajoute(Fenetre const & fenetre)
{
    HWND const poignee = DonnePoignee(++monDernierNumero);
    Ajoute(poignee, fenetre);
    return poignee;
}

void FenetresSimulees::Ajoute(HWND poignee, Fenetre const & fenetre)
{
    mesFenetres[poignee] = fenetre;
    PlaceEnHaut(poignee);
}

void FenetresSimulees::Retire(HWND fenetre)
{
    mesFenetres.erase(fenetre);
    std::erase(monOrdre, fenetre);
    if (avantPlan == fenetre)
        avantPlan = nullptr;
    if (focus == fenetre)
        focus = nullptr;
}

FenetresSimulees::Fenetre & FenetresSimulees::Prete(HWND fenetre)
{
    auto const trouvee = mesFenetres.find(fenetre);
    if (trouvee == mesFenetres.end())
        qFatal("FenetresSimulees: dead handle");
    return trouvee->second;
}

HMONITOR FenetresSimulees::AjouteMoniteur(InfosMoniteur const & infos)
{
    mesMoniteurs.push_back(infos);
    return DonneMoniteur(mesMoniteurs.size() - 1);
}

std::vector<HWND> FenetresSimulees::DonnePile() const
{
    return DonneEnfants(nullptr);
}

QString FenetresSimulees::DonneTexteRecu(HWND fenetre) const
{
    return mesTextes.value(fenetre);
}

HWND FenetresSimulees::GetForegroundWindow()
{
    return avantPlan;
}

HWND FenetresSimulees::GetDesktopWindow()
{
    return bureau;
}

HWND FenetresSimulees::GetTopWindow(HWND parent)
{
    auto const enfants = DonneEnfants(parent == bureau ? nullptr : parent);
    return enfants.empty() ? nullptr : enfants.front();
}

HWND FenetresSimulees::GetWindow(HWND fenetre, UINT relation)
{
    Fenetre const * const description = Cherche(fenetre);
    if (!description)
        return nullptr;
    if (relation == GW_OWNER)
        return IsWindow(description->proprietaire) ? description->proprietaire : nullptr;
    if (relation == GW_CHILD)
        return GetTopWindow(fenetre);
    auto const pile = DonneEnfants(description->parent);
    auto const position = std::find(pile.begin(), pile.end(), fenetre);
    switch (relation) {
    case GW_HWNDFIRST:
        return pile.front();
    case GW_HWNDLAST:
        return pile.back();
    case GW_HWNDNEXT:
        return position + 1 == pile.end() ? nullptr : *(position + 1);
    case GW_HWNDPREV:
        return position == pile.begin() ? nullptr : *(position - 1);
    default:
        return nullptr;
    }
}

HWND FenetresSimulees::GetParent(HWND fenetre)
{
    Fenetre const * const description = Cherche(fenetre);
    if (!description)
        return nullptr;
    return description->parent ? description->parent : GetWindow(fenetre, GW_OWNER);
}

HWND FenetresSimulees::FindWindowW(QString const & classe, QString const & titre)
{
    for (HWND const fenetre : DonnePile()) {
        Fenetre const & description = Prete(fenetre);
        if ((classe.isEmpty() || description.classe.compare(classe, Qt::CaseInsensitive) == 0) &&
            (titre.isEmpty() || description.titre.compare(titre, Qt::CaseInsensitive) == 0))
            return fenetre;
    }
    return nullptr;
}

bool FenetresSimulees::IsWindow(HWND fenetre)
{
    return fenetre && (fenetre == bureau || Cherche(fenetre));
}

bool FenetresSimulees::IsWindowVisible(HWND fenetre)
{
    Fenetre const * const description = Cherche(fenetre);
    return description && (description->style & WS_VISIBLE) &&
           (!description->parent || IsWindowVisible(description->parent));
}

bool FenetresSimulees::IsIconic(HWND fenetre)
{
    Fenetre const * const description = Cherche(fenetre);
    return description && (description->style & WS_MINIMIZE);
}

bool FenetresSimulees::IsHungAppWindow(HWND fenetre)
{
    Fenetre const * const description = Cherche(fenetre);
    return description && description->gelee;
}

LONG_PTR FenetresSimulees::GetWindowLongPtrW(HWND fenetre, int indice)
{
    Fenetre const * const description = Cherche(fenetre);
    if (!description || (indice != GWL_STYLE && indice != GWL_EXSTYLE))
        return 0;
    if (indice == GWL_EXSTYLE)
        return static_cast<LONG_PTR>(description->styleEtendu);
    DWORD const enfant = description->parent ? WS_CHILD : 0;
    return static_cast<LONG_PTR>(description->style | enfant);
}

DWORD FenetresSimulees::GetWindowThreadProcessId(HWND fenetre, DWORD * processus)
{
    Fenetre const * const description = Cherche(fenetre);
    if (processus)
        *processus = description ? description->processus : 0;
    return description ? description->thread : 0;
}

QString FenetresSimulees::GetWindowTextW(HWND fenetre)
{
    Fenetre const * const description = Cherche(fenetre);
    return description ? description->titre : QString();
}

bool FenetresSimulees::GetClientRect(HWND fenetre, RECT * rect)
{
    Fenetre const * const description = Cherche(fenetre);
    if (!description || !rect)
        return false;
    *rect = {0, 0, description->client.width(), description->client.height()};
    return true;
}

bool FenetresSimulees::ClientToScreen(HWND fenetre, POINT * point)
{
    Fenetre const * const description = Cherche(fenetre);
    if (!description || !point)
        return false;
    point->x += description->client.x();
    point->y += description->client.y();
    return true;
}

bool FenetresSimulees::SetForegroundWindow(HWND fenetre)
{
    Note("SetForegroundWindow", fenetre);
    if (refuseAvantPlan || !Cherche(fenetre))
        return false;
    avantPlan = fenetre;
    focus = fenetre;
    return true;
}

bool FenetresSimulees::BringWindowToTop(HWND fenetre)
{
    Note("BringWindowToTop", fenetre);
    if (!Cherche(fenetre))
        return false;
    PlaceEnHaut(fenetre);
    return true;
}

bool FenetresSimulees::ShowWindow(HWND fenetre, int commande)
{
    Note("ShowWindow", fenetre, {QString::number(commande)});
    if (!Cherche(fenetre))
        return false;
    Fenetre & description = Prete(fenetre);
    bool const etaitVisible = description.style & WS_VISIBLE;
    switch (commande) {
    case SW_HIDE:
        description.style &= ~WS_VISIBLE;
        break;
    case SW_MINIMIZE:
        description.style |= WS_VISIBLE | WS_MINIMIZE;
        break;
    case SW_SHOWNORMAL:
    case SW_RESTORE:
        description.style &= ~WS_MINIMIZE;
        description.style |= WS_VISIBLE;
        break;
    default:
        description.style |= WS_VISIBLE;
        break;
    }
    return etaitVisible;
}

bool FenetresSimulees::SetWindowPos(HWND fenetre, HWND apres, int x, int y, int largeur,
                                    int hauteur, UINT options)
{
    QString const place = apres == HWND_TOPMOST     ? u"HWND_TOPMOST"_s
                          : apres == HWND_NOTOPMOST ? u"HWND_NOTOPMOST"_s
                          : apres == HWND_TOP       ? u"HWND_TOP"_s
                          : apres == HWND_BOTTOM    ? u"HWND_BOTTOM"_s
                                                    : DonneNom(apres);
    Note("SetWindowPos", fenetre, {place, Hexa(options)});
    if (!Cherche(fenetre))
        return false;
    Fenetre & description = Prete(fenetre);
    if (!(options & SWP_NOZORDER)) {
        if (apres == HWND_TOPMOST)
            description.styleEtendu |= WS_EX_TOPMOST;
        else if (apres == HWND_NOTOPMOST)
            description.styleEtendu &= ~WS_EX_TOPMOST;
        if (apres == HWND_TOPMOST || apres == HWND_NOTOPMOST || apres == HWND_TOP)
            PlaceEnHaut(fenetre);
        else
            PlaceSous(fenetre, apres);
    }
    if (!(options & SWP_NOMOVE))
        description.client.moveTo(x, y);
    if (!(options & SWP_NOSIZE))
        description.client.setSize({largeur, hauteur});
    return true;
}

LONG_PTR FenetresSimulees::SetWindowLongPtrW(HWND fenetre, int indice, LONG_PTR valeur)
{
    HWND const proprietaire = DonnePoignee(static_cast<quintptr>(valeur));
    Note("SetWindowLongPtrW", fenetre, {QString::number(indice), DonneNom(proprietaire)});
    if (!Cherche(fenetre) || indice != GWLP_HWNDPARENT)
        return 0;
    HWND const avant = std::exchange(Prete(fenetre).proprietaire, proprietaire);
    return reinterpret_cast<LONG_PTR>(avant);
}

HWND FenetresSimulees::GetFocus()
{
    return focus;
}

DWORD FenetresSimulees::GetCurrentThreadId()
{
    return kNotreThread;
}

bool FenetresSimulees::AttachThreadInput(DWORD thread, DWORD versThread, bool attache)
{
    appels << u"AttachThreadInput(%1, %2, %3)"_s.arg(thread)
                  .arg(versThread)
                  .arg(attache ? u"true"_s : u"false"_s);
    return !refuseAttachement && thread != 0 && versThread != 0 && thread != versThread;
}

bool FenetresSimulees::PostMessageW(HWND fenetre, UINT message, WPARAM wParam, LPARAM lParam)
{
    Note("PostMessageW", fenetre,
         {Hexa(message), Hexa(wParam), Hexa(static_cast<quint64>(lParam) & 0xffffffff)});
    if (!Cherche(fenetre))
        return false;
    if (message == WM_KEYDOWN || message == WM_CHAR) {
        char32_t const caractere = static_cast<char32_t>(wParam);
        mesTextes[fenetre] += QString::fromUcs4(&caractere, 1);
    }
    if (message == WM_CLOSE)
        Retire(fenetre);
    return true;
}

LRESULT FenetresSimulees::SendMessageTimeoutW(HWND fenetre, UINT message, WPARAM, LPARAM,
                                              UINT options, UINT delai, DWORD_PTR * resultat)
{
    Note("SendMessageTimeoutW", fenetre, {Hexa(message), Hexa(options), QString::number(delai)});
    if (!Cherche(fenetre) || IsHungAppWindow(fenetre))
        return 0;
    if (resultat)
        *resultat = 0;
    return 1;
}

HINSTANCE FenetresSimulees::GetModuleHandleW()
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number that nobody dereferences
    return reinterpret_cast<HINSTANCE>(quintptr{0x400000});
}

bool FenetresSimulees::RegisterClassW(QString const & classe, UINT style, HINSTANCE, ULONG_PTR fond)
{
    appels << u"RegisterClassW(%1, %2, %3)"_s.arg(classe, Hexa(style)).arg(fond);
    if (classe.isEmpty() || mesClasses.contains(classe, Qt::CaseInsensitive))
        return false;
    mesClasses << classe;
    return true;
}

bool FenetresSimulees::UnregisterClassW(QString const & classe, HINSTANCE)
{
    appels << u"UnregisterClassW(%1)"_s.arg(classe);
    bool const sert = std::any_of(mesFenetres.begin(), mesFenetres.end(), [&](auto const & f) {
        return f.second.processus == kNotreProcessus &&
               f.second.classe.compare(classe, Qt::CaseInsensitive) == 0;
    });
    return !sert && mesClasses.removeIf([&](QString const & connue) {
        return connue.compare(classe, Qt::CaseInsensitive) == 0;
    }) > 0;
}

HWND FenetresSimulees::CreateWindowExW(DWORD styleEtendu, QString const & classe,
                                       QString const & titre, DWORD style, int x, int y,
                                       int largeur, int hauteur, HINSTANCE)
{
    appels << u"CreateWindowExW(%1, %2, %3, %4, %5, %6, %7, %8)"_s
                  .arg(Hexa(styleEtendu), classe, titre, Hexa(style))
                  .arg(x)
                  .arg(y)
                  .arg(largeur)
                  .arg(hauteur);
    if (!mesClasses.contains(classe, Qt::CaseInsensitive))
        return nullptr;
    Fenetre fenetre{classe, titre, style, styleEtendu};
    fenetre.processus = kNotreProcessus;
    fenetre.thread = kNotreThread;
    fenetre.client = {x, y, largeur, hauteur};
    return Ajoute(fenetre);
}

bool FenetresSimulees::DestroyWindow(HWND fenetre)
{
    Note("DestroyWindow", fenetre);
    Fenetre const * const description = Cherche(fenetre);
    if (!description || description->thread != kNotreThread) // only its own thread may
        return false;
    Retire(fenetre);
    return true;
}

DWORD FenetresSimulees::GetSysColor(int indice)
{
    auto const couleur = couleurs.constFind(indice);
    return couleur == couleurs.constEnd() ? CouleurDePalette(indice) : *couleur;
}

HMONITOR FenetresSimulees::MonitorFromWindow(HWND fenetre, DWORD options)
{
    Fenetre const * const description = Cherche(fenetre);
    if (description && description->moniteur)
        return description->moniteur;
    return options == MONITOR_DEFAULTTONULL || mesMoniteurs.empty() ? nullptr : DonneMoniteur(0);
}

bool FenetresSimulees::GetMonitorInfoW(HMONITOR moniteur, InfosMoniteur * infos)
{
    auto const rang = reinterpret_cast<std::size_t>(moniteur) - 1;
    if (rang >= mesMoniteurs.size() || !infos)
        return false;
    *infos = mesMoniteurs[rang];
    return true;
}

QString FenetresSimulees::DonneNomClasse(HWND fenetre)
{
    Fenetre const * const description = Cherche(fenetre);
    return description ? description->classe : QString();
}

QString FenetresSimulees::DonneExecutable(HWND fenetre)
{
    Fenetre const * const description = Cherche(fenetre);
    return description ? description->executable : QString();
}

HWND FenetresSimulees::DonneEnfantDeClasse(HWND parent, QString const & classe)
{
    if (!parent)
        return nullptr;
    auto const enfants = DonneEnfants(parent);
    for (HWND const enfant : enfants) {
        if (Prete(enfant).classe.compare(classe, Qt::CaseInsensitive) == 0)
            return enfant;
    }
    for (HWND const enfant : enfants) {
        if (HWND const trouvee = DonneEnfantDeClasse(enfant, classe))
            return trouvee;
    }
    return nullptr;
}

FenetresSimulees::Fenetre const * FenetresSimulees::Cherche(HWND fenetre) const
{
    auto const trouvee = mesFenetres.find(fenetre);
    return trouvee == mesFenetres.end() ? nullptr : &trouvee->second;
}

std::vector<HWND> FenetresSimulees::DonneEnfants(HWND parent) const
{
    std::vector<HWND> enfants;
    for (HWND const fenetre : monOrdre)
        if (mesFenetres.at(fenetre).parent == parent)
            enfants.push_back(fenetre);
    return enfants;
}

void FenetresSimulees::PlaceEnHaut(HWND fenetre)
{
    std::erase(monOrdre, fenetre);
    // Windows without the topmost style stay under those that have it.
    bool const estPremierPlan = mesFenetres.at(fenetre).styleEtendu & WS_EX_TOPMOST;
    auto const place = std::find_if(monOrdre.begin(), monOrdre.end(), [&](HWND autre) {
        return estPremierPlan || !(mesFenetres.at(autre).styleEtendu & WS_EX_TOPMOST);
    });
    monOrdre.insert(place, fenetre);
}

void FenetresSimulees::PlaceSous(HWND fenetre, HWND voisine)
{
    std::erase(monOrdre, fenetre);
    auto const place = std::find(monOrdre.begin(), monOrdre.end(), voisine);
    monOrdre.insert(place == monOrdre.end() ? place : place + 1, fenetre);
}

QString FenetresSimulees::DonneNom(HWND fenetre) const
{
    Fenetre const * const description = Cherche(fenetre);
    return description ? description->classe : fenetre ? u"dead"_s : u"null"_s;
}

void FenetresSimulees::Note(char const * operation, HWND fenetre, QStringList const & arguments)
{
    appels << QLatin1StringView(operation) + u'(' +
                  (QStringList{DonneNom(fenetre)} + arguments).join(u", "_s) + u')';
}
