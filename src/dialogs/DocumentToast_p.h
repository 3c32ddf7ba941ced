// dialogs/DocumentToast_p.h
#pragma once

#include "noyau/plateforme/InterfacesToasts.h"

#include <QList>
#include <QString>

/// What a toast says, in words of its own: the rest is the document of the platform.
struct ContenuToast
{
    struct Action
    {
        QString libelle;   ///< as the user reads it
        QString arguments; ///< as it comes back when the user presses it
    };

    QString image; ///< the URL of a file
    QList<QString> textes;
    QList<Action> actions;
};

/// Fills the document of the template of an image and three texts. Stops at the first failure and
/// returns it; `document` is then to be thrown away.
HRESULT RemplisDocumentToast(Toasts::IXmlDocument * document, ContenuToast const & contenu);
