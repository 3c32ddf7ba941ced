// galerie/TraceSignaux.cpp
#include "TraceSignaux.h"

#include "TraductionGalerie.h"

#include <QAction>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QModelIndex>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLignes = 200; // kept

QString Decris(QVariant const & argument)
{
    if (argument.canConvert<QModelIndex>())
        return argument.value<QModelIndex>().data().toString();
    if (auto const * const action = argument.value<QAction *>())
        return action->text();
    return argument.toString();
}

} // namespace

TraceSignaux::TraceSignaux(QString const & nom, QWidget * parent)
    : QPlainTextEdit(parent)
{
    setAccessibleName(nom);
    setReadOnly(true);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setLineWrapMode(NoWrap);
    setMaximumBlockCount(kLignes);
    setPlaceholderText(TraductionGalerie(TexteGalerie("Rien encore")));
}

void TraceSignaux::Ajoute(QString const & ligne)
{
    appendPlainText(ligne);
}

QString TraceSignaux::DonneFonction(QObject const & emetteur, QString const & nom)
{
    return QString::fromLatin1(emetteur.metaObject()->className()) + u"::"_s + nom;
}

void TraceSignaux::AjouteAppel(QString const & fonction, QVariantList const & arguments)
{
    QStringList textes;
    for (QVariant const & argument : arguments)
        textes.append(Decris(argument));
    Ajoute(u"%1(%2)"_s.arg(fonction, textes.join(u", "_s)));
}

QGroupBox * EncadreTrace(TraceSignaux & trace)
{
    auto * const groupe = new QGroupBox(trace.accessibleName());
    auto * const effacer = new QPushButton(TraductionGalerie(TexteGalerie("&Effacer la trace")));
    effacer->setObjectName(u"effacer"_s);
    QObject::connect(effacer, &QPushButton::clicked, &trace, &TraceSignaux::clear,
                     Qt::UniqueConnection);
    auto * const disposition = new QVBoxLayout(groupe);
    disposition->addWidget(&trace, 1);
    disposition->addWidget(effacer, 0, Qt::AlignTrailing);
    return groupe;
}

QWidget * EtiquetteTrace(TraceSignaux & trace, QString const & libelle, int hauteur)
{
    auto * const cadre = new QWidget;
    auto * const etiquette = new QLabel(libelle);
    etiquette->setBuddy(&trace);
    trace.setFixedHeight(hauteur);
    auto * const disposition = new QHBoxLayout(cadre);
    disposition->setContentsMargins({});
    disposition->addWidget(etiquette, 0, Qt::AlignTop);
    disposition->addWidget(&trace);
    return cadre;
}
