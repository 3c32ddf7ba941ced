// tests/outils/fenetre_etrangere.cpp
// A program of its own with windows of its own, which a test drives: one command per line on the
// standard input, one line in answer to each. It ends with its input.
// Usage: fenetre_etrangere CLASS

#include "noyau/plateforme/PlateformeFenetres.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QSocketNotifier>
#include <QVBoxLayout>

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {
class Serveur
{
public:
    QString Traite(QString const & commande, QString const & argument)
    {
        if (commande == "fenetre"_L1)
            return Montre(argument, std::make_unique<QWidget>());
        if (commande == "orphelin"_L1)
            return Montre(argument, std::make_unique<QDialog>());
        if (commande == "dialogue"_L1)
            return Montre(argument, std::make_unique<QDialog>(mesFenetres.begin()->second.get()));
        if (commande == "outil"_L1)
            return Montre(argument, std::make_unique<QWidget>(nullptr, Qt::Tool));
        if (commande == "menu"_L1)
            return Montre(argument,
                          std::make_unique<QWidget>(nullptr, Qt::X11BypassWindowManagerHint));
        if (commande == "enfant"_L1)
            return QString::number(mesFenetres.at(argument)->findChild<QLineEdit *>()->winId());
        if (commande == "opacite"_L1) {
            mesFenetres.at(argument)->setWindowOpacity(0.5);
            return u"ok"_s;
        }
        if (commande == "texte"_L1)
            return u'<' + mesFenetres.at(argument)->findChild<QLineEdit *>()->text() + u'>';
        if (commande == "visible"_L1)
            return mesFenetres.at(argument)->isVisible() ? u"oui"_s : u"non"_s;
        if (commande == "chef"_L1) {
            NommeChef(mesFenetres.at(argument)->winId());
            return u"ok"_s;
        }
        if (commande == "reserve"_L1)
            return QString::number(NommeChefEnReserve());
        if (commande == "trouve"_L1)
            return QString::number(reinterpret_cast<quintptr>(
                PlateformeFenetres::Courante().FindWindowW(argument, {})));
        return u"?"_s;
    }

private:
    QString Montre(QString const & titre, std::unique_ptr<QWidget> fenetre)
    {
        fenetre->setWindowTitle(titre);
        fenetre->setGeometry(100, 100, 300, 200);
        auto * const disposition = new QVBoxLayout(fenetre.get());
        auto * const champ = new QLineEdit;
        disposition->addWidget(champ);
        champ->setFocus();
        fenetre->show();
        WId const poignee = fenetre->winId();
        mesFenetres[titre] = std::move(fenetre);
        return QString::number(poignee);
    }

    // As programs did whose main window led their group, in the place of Qt's hidden one.
    void NommeChef(WId chef)
    {
        for (auto const & [titre, fenetre] : mesFenetres)
            EcrisMot(fenetre->winId(), DonneAtome("WM_CLIENT_LEADER"), XCB_ATOM_WINDOW,
                     static_cast<std::uint32_t>(chef));
    }

    // A leader that owns all the windows, and that a manager keeps without showing it, not even as
    // an icon: as the windows of another desktop may be.
    WId NommeChefEnReserve()
    {
        monChef = std::make_unique<QWidget>();
        WId const chef = monChef->winId();
        xcb_atom_t const etat = DonneAtome("WM_STATE");
        EcrisMot(chef, etat, etat, 1); // normal
        for (auto const & [titre, fenetre] : mesFenetres)
            EcrisMot(fenetre->winId(), XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW,
                     static_cast<std::uint32_t>(chef));
        NommeChef(chef);
        return chef;
    }

    static xcb_connection_t * PreteConnexion()
    {
        return qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    }

    static xcb_atom_t DonneAtome(std::string_view nom)
    {
        std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> const atome(
            xcb_intern_atom_reply(PreteConnexion(),
                                  xcb_intern_atom(PreteConnexion(), 0,
                                                  static_cast<std::uint16_t>(nom.size()),
                                                  nom.data()),
                                  nullptr),
            &std::free);
        return atome->atom;
    }

    static void EcrisMot(WId fenetre, xcb_atom_t propriete, xcb_atom_t type, std::uint32_t mot)
    {
        xcb_change_property(PreteConnexion(), XCB_PROP_MODE_REPLACE,
                            static_cast<xcb_window_t>(fenetre), propriete, type, 32, 1, &mot);
        xcb_flush(PreteConnexion());
    }

    std::unique_ptr<QWidget> monChef;
    std::map<QString, std::unique_ptr<QWidget>> mesFenetres;
};
} // namespace

int main(int argc, char ** argv)
{
    QApplication application(argc, argv);
    if (argc > 1)
        QApplication::setApplicationName(QString::fromLocal8Bit(argv[1]));
    QApplication::setQuitOnLastWindowClosed(false);

    Serveur serveur;
    QSocketNotifier entree(0, QSocketNotifier::Read);
    QObject::connect(&entree, &QSocketNotifier::activated, [&] {
        // One line at a time: the test waits for each answer before it writes again.
        std::string ligne;
        if (!std::getline(std::cin, ligne)) {
            entree.setEnabled(false);
            QApplication::quit();
            return;
        }
        QString const texte = QString::fromStdString(ligne);
        QString const reponse = serveur.Traite(texte.section(u' ', 0, 0), texte.section(u' ', 1));
        std::cout << reponse.toStdString() << std::endl;
    });
    return QApplication::exec();
}
