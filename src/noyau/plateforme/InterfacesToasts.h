// noyau/plateforme/InterfacesToasts.h
#pragma once

#include "noyau/plateforme/TypesWin32.h"

#include "FabrelNoyauExport.h"

#include <QString>

/// The platform's interfaces of toasts, under its names: only the operations that are used, and
/// with `QString` for its strings.
///
/// The rules are the platform's. An object is counted: what a call returns through a pointer comes
/// with a reference that is the caller's to release, and is null when the call fails. What the
/// caller passes stays the caller's. A class converts to another one by its own `QueryInterface`.
namespace Toasts {

enum ToastTemplateType
{
    ToastImageAndText04 = 3 ///< an image and three lines of text
};

enum NotificationSetting
{
    NotificationSetting_Enabled = 0,
    NotificationSetting_DisabledForApplication = 1,
    NotificationSetting_DisabledForUser = 2,
    NotificationSetting_DisabledByGroupPolicy = 3,
    NotificationSetting_DisabledByManifest = 4
};

enum ToastDismissalReason
{
    ToastDismissalReason_UserCanceled = 0,
    ToastDismissalReason_ApplicationHidden = 1,
    ToastDismissalReason_TimedOut = 2
};

struct EventRegistrationToken
{
    qint64 value = 0;
};

class FABRELNOYAU_EXPORT IUnknown
{
public:
    IUnknown() = default;
    IUnknown(IUnknown const &) = delete;
    IUnknown & operator=(IUnknown const &) = delete;

    /// From any thread, like the next one; both return the new count.
    virtual ULONG AddRef() = 0;
    virtual ULONG Release() = 0;

protected:
    virtual ~IUnknown(); // by the last Release
};

class IXmlElement;
class IXmlNode;

class FABRELNOYAU_EXPORT IXmlNamedNodeMap : public IUnknown
{
public:
    virtual HRESULT GetNamedItem(QString const & nom, IXmlNode ** noeud) = 0;
};

class FABRELNOYAU_EXPORT IXmlNode : public IUnknown
{
public:
    virtual HRESULT get_Attributes(IXmlNamedNodeMap ** attributs) = 0;
    virtual HRESULT AppendChild(IXmlNode * enfant, IXmlNode ** ajoutay) = 0;
    virtual HRESULT QueryInterface(IXmlElement ** element) = 0;
};

class FABRELNOYAU_EXPORT IXmlText : public IUnknown
{
public:
    virtual HRESULT QueryInterface(IXmlNode ** noeud) = 0;
};

class FABRELNOYAU_EXPORT IXmlElement : public IUnknown
{
public:
    virtual HRESULT SetAttribute(QString const & nom, QString const & valeur) = 0;
    virtual HRESULT QueryInterface(IXmlNode ** noeud) = 0;
};

class FABRELNOYAU_EXPORT IXmlNodeList : public IUnknown
{
public:
    virtual HRESULT get_Length(UINT * longueur) = 0;
    virtual HRESULT Item(UINT indice, IXmlNode ** noeud) = 0;
};

class FABRELNOYAU_EXPORT IXmlDocument : public IUnknown
{
public:
    virtual HRESULT CreateElement(QString const & nom, IXmlElement ** element) = 0;
    virtual HRESULT CreateTextNode(QString const & texte, IXmlText ** noeud) = 0;
    virtual HRESULT GetElementsByTagName(QString const & nom, IXmlNodeList ** elements) = 0;
};

class FABRELNOYAU_EXPORT IToastActivatedEventArgs : public IUnknown
{
public:
    virtual HRESULT get_Arguments(QString * arguments) = 0;
};

class FABRELNOYAU_EXPORT IToastDismissedEventArgs : public IUnknown
{
public:
    virtual HRESULT get_Reason(ToastDismissalReason * raison) = 0;
};

/// What comes with a failure; nothing of it is read.
class FABRELNOYAU_EXPORT IToastFailedEventArgs : public IUnknown
{
};

class FABRELNOYAU_EXPORT IInspectable : public IUnknown
{
public:
    virtual HRESULT QueryInterface(IToastActivatedEventArgs ** arguments) = 0;
};

class IToastNotification;

/// What an event calls, on a thread of the platform. Both pointers are lent for the call; the
/// second may be null.
template <typename Arguments>
class ITypedEventHandler : public IUnknown
{
public:
    virtual HRESULT Invoke(IToastNotification * emetteur, Arguments * arguments) = 0;
};

class FABRELNOYAU_EXPORT IToastNotification6 : public IUnknown
{
public:
    virtual HRESULT put_ExpiresOnReboot(bool valeur) = 0;
};

class FABRELNOYAU_EXPORT IToastNotification : public IUnknown
{
public:
    virtual HRESULT add_Activated(ITypedEventHandler<IInspectable> * gestionnaire,
                                  EventRegistrationToken * jeton) = 0;
    virtual HRESULT add_Dismissed(ITypedEventHandler<IToastDismissedEventArgs> * gestionnaire,
                                  EventRegistrationToken * jeton) = 0;
    virtual HRESULT add_Failed(ITypedEventHandler<IToastFailedEventArgs> * gestionnaire,
                               EventRegistrationToken * jeton) = 0;
    virtual HRESULT QueryInterface(IToastNotification6 ** notification) = 0;
};

class FABRELNOYAU_EXPORT IToastNotificationFactory : public IUnknown
{
public:
    virtual HRESULT CreateToastNotification(IXmlDocument * document,
                                            IToastNotification ** notification) = 0;
};

class FABRELNOYAU_EXPORT IToastNotifier : public IUnknown
{
public:
    virtual HRESULT Show(IToastNotification * notification) = 0;
    virtual HRESULT Hide(IToastNotification * notification) = 0;
    virtual HRESULT get_Setting(NotificationSetting * reglage) = 0;
};

class FABRELNOYAU_EXPORT IToastNotificationManagerStatics : public IUnknown
{
public:
    virtual HRESULT CreateToastNotifierWithId(QString const & identifiantApplication,
                                              IToastNotifier ** notificateur) = 0;
    virtual HRESULT GetTemplateContent(ToastTemplateType type, IXmlDocument ** document) = 0;
};

} // namespace Toasts
