// galerie/TraceSignaux.cpp
#include "TraceSignaux.h"

#include "TraductionGalerie.h"

#include <QAction>
#include <QModelIndex>

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
