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
        auto * const connexion =
            qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
        constexpr std::string_view kNom = "WM_CLIENT_LEADER";
        std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> const atome(
            xcb_intern_atom_reply(connexion,
                                  xcb_intern_atom(connexion, 0, kNom.size(), kNom.data()), nullptr),
            &std::free);
        auto const valeur = static_cast<xcb_window_t>(chef);
        for (auto const & [titre, fenetre] : mesFenetres)
            xcb_change_property(connexion, XCB_PROP_MODE_REPLACE,
                                static_cast<xcb_window_t>(fenetre->winId()), atome->atom,
                                XCB_ATOM_WINDOW, 32, 1, &valeur);
        xcb_flush(connexion);
    }

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
