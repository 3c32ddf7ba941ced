// tests/outils/LecteurSimulay.cpp
#include "outils/LecteurSimulay.h"

#include <QAccessibleBridge>
#include <QAccessibleBridgePlugin>
#include <QtPlugin>

#include <algorithm>

namespace {

QList<LecteurSimulay::Annonce> & Memoire()
{
    static QList<LecteurSimulay::Annonce> annonces;
    return annonces;
}

class PontSimulay : public QAccessibleBridge
{
public:
    void setRootObject(QAccessibleInterface *) override {}

    void notifyAccessibilityUpdate(QAccessibleEvent * evenement) override
    {
        LecteurSimulay::Annonce annonce{evenement->type(), evenement->object(), {}};
        if (annonce.nature == QAccessible::StateChanged)
            annonce.etats = static_cast<QAccessibleStateChangeEvent *>(evenement)->changedStates();
        Memoire() << annonce;
    }
};

} // namespace

class GreffonLecteurSimulay : public QAccessibleBridgePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QAccessibleBridgeFactoryInterface_iid FILE "LecteurSimulay.json")

public:
    QAccessibleBridge * create(QString const &) override
    {
        // Qt owns it, yet deletes it on some platforms only.
        static PontSimulay * const pont = new PontSimulay;
        return pont;
    }
};

#include "LecteurSimulay.moc"

void LecteurSimulay::Installe()
{
    qRegisterStaticPluginFunction(qt_static_plugin_GreffonLecteurSimulay());
}

void LecteurSimulay::Oublie()
{
    Memoire().clear();
}

QList<LecteurSimulay::Annonce> LecteurSimulay::Annonces()
{
    return Memoire();
}

int LecteurSimulay::CompteChangements(QObject const * objet, QAccessible::State etat)
{
    return static_cast<int>(
        std::count_if(Memoire().cbegin(), Memoire().cend(), [&](Annonce const & annonce) {
            return annonce.nature == QAccessible::StateChanged && annonce.objet == objet &&
                   annonce.etats == etat;
        }));
}
