// noyau/plateforme/InterfacesWinRT_p.h
#pragma once

#include "noyau/plateforme/TypesWin32.h"

#include <eventtoken.h>
#include <inspectable.h>

// The platform's objects are never destroyed through their interfaces, and a destructor in the
// table of functions would move the rest.
#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif

// The binary interfaces of the platform's toasts, as its metadata define them: not every compiler
// for Windows brings a header of them. What is not called keeps its place in the table of functions
// all the same, as a `Place`.
namespace AbiWinRT {

using ::EventRegistrationToken;
using ::HSTRING;
using ::IInspectable;
using ::IUnknown;

// Enumerations are 32-bit integers here; their values stand in InterfacesToasts.h.
using Enumeration = INT32;

#define FABREL_PLACE(nom) virtual HRESULT STDMETHODCALLTYPE nom() = 0

struct IXmlNode;

struct IXmlNamedNodeMap : IInspectable
{
    static constexpr IID kIid{
        0xb3a69eb0, 0xaab0, 0x4b82, {0xa6, 0xfa, 0xb1, 0x45, 0x3f, 0x7c, 0x02, 0x1b}};
    virtual HRESULT STDMETHODCALLTYPE get_Length(UINT32 * longueur) = 0;
    virtual HRESULT STDMETHODCALLTYPE Item(UINT32 indice, IXmlNode ** noeud) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetNamedItem(HSTRING nom, IXmlNode ** noeud) = 0;
};

struct IXmlNodeList : IInspectable
{
    static constexpr IID kIid{
        0x8c60ad77, 0x83a4, 0x4ec1, {0x9c, 0x54, 0x7b, 0xa4, 0x29, 0xe1, 0x3d, 0xa6}};
    virtual HRESULT STDMETHODCALLTYPE get_Length(UINT32 * longueur) = 0;
    virtual HRESULT STDMETHODCALLTYPE Item(UINT32 indice, IXmlNode ** noeud) = 0;
};

struct IXmlNode : IInspectable
{
    static constexpr IID kIid{
        0x1c741d59, 0x2122, 0x47d5, {0xa8, 0x56, 0x83, 0xf3, 0xd4, 0x21, 0x48, 0x75}};
    FABREL_PLACE(get_NodeValue);
    FABREL_PLACE(put_NodeValue);
    FABREL_PLACE(get_NodeType);
    FABREL_PLACE(get_NodeName);
    FABREL_PLACE(get_ParentNode);
    FABREL_PLACE(get_ChildNodes);
    FABREL_PLACE(get_FirstChild);
    FABREL_PLACE(get_LastChild);
    FABREL_PLACE(get_PreviousSibling);
    FABREL_PLACE(get_NextSibling);
    virtual HRESULT STDMETHODCALLTYPE get_Attributes(IXmlNamedNodeMap ** attributs) = 0;
    FABREL_PLACE(HasChildNodes);
    FABREL_PLACE(get_OwnerDocument);
    FABREL_PLACE(InsertBefore);
    FABREL_PLACE(ReplaceChild);
    FABREL_PLACE(RemoveChild);
    virtual HRESULT STDMETHODCALLTYPE AppendChild(IXmlNode * enfant, IXmlNode ** ajoutay) = 0;
};

// Nothing of its own is called; it is known by the interface of a node.
struct IXmlText : IInspectable
{
    static constexpr IID kIid{
        0xf931a4cb, 0x308d, 0x4760, {0xa1, 0xd5, 0x43, 0xb6, 0x74, 0x50, 0xac, 0x7e}};
};

struct IXmlElement : IInspectable
{
    static constexpr IID kIid{
        0x2dfb8a1f, 0x6b10, 0x4ef8, {0x9f, 0x83, 0xef, 0xcc, 0xe8, 0xfa, 0xec, 0x37}};
    FABREL_PLACE(get_TagName);
    FABREL_PLACE(GetAttribute);
    virtual HRESULT STDMETHODCALLTYPE SetAttribute(HSTRING nom, HSTRING valeur) = 0;
};

struct IXmlDocument : IInspectable
{
    static constexpr IID kIid{
        0xf7f3a506, 0x1e87, 0x42d6, {0xbc, 0xfb, 0xb8, 0xc8, 0x09, 0xfa, 0x54, 0x94}};
    FABREL_PLACE(get_Doctype);
    FABREL_PLACE(get_Implementation);
    FABREL_PLACE(get_DocumentElement);
    virtual HRESULT STDMETHODCALLTYPE CreateElement(HSTRING nom, IXmlElement ** element) = 0;
    FABREL_PLACE(CreateDocumentFragment);
    virtual HRESULT STDMETHODCALLTYPE CreateTextNode(HSTRING texte, IXmlText ** noeud) = 0;
    FABREL_PLACE(CreateComment);
    FABREL_PLACE(CreateProcessingInstruction);
    FABREL_PLACE(CreateAttribute);
    FABREL_PLACE(CreateEntityReference);
    virtual HRESULT STDMETHODCALLTYPE GetElementsByTagName(HSTRING nom,
                                                           IXmlNodeList ** elements) = 0;
};

struct IToastActivatedEventArgs : IInspectable
{
    static constexpr IID kIid{
        0xe3bf92f3, 0xc197, 0x436f, {0x82, 0x65, 0x06, 0x25, 0x82, 0x4f, 0x8d, 0xac}};
    virtual HRESULT STDMETHODCALLTYPE get_Arguments(HSTRING * arguments) = 0;
};

struct IToastDismissedEventArgs : IInspectable
{
    static constexpr IID kIid{
        0x3f89d935, 0xd9cb, 0x4538, {0xa0, 0xf0, 0xff, 0xe7, 0x65, 0x99, 0x38, 0xf8}};
    virtual HRESULT STDMETHODCALLTYPE get_Reason(Enumeration * raison) = 0;
};

struct IToastFailedEventArgs : IInspectable
{
    static constexpr IID kIid{
        0x35176862, 0xcfd4, 0x44f8, {0xad, 0x64, 0xf5, 0x00, 0xfd, 0x89, 0x6c, 0x3b}};
    virtual HRESULT STDMETHODCALLTYPE get_ErrorCode(HRESULT * code) = 0;
};

struct IToastNotification;

/// A delegate, which is no `IInspectable`. Its identifier is made of those of its arguments.
template <typename Arguments>
struct ITypedEventHandler : IUnknown
{
    static IID const kIid;
    virtual HRESULT STDMETHODCALLTYPE Invoke(IToastNotification * emetteur,
                                             Arguments * arguments) = 0;
};

template <>
inline constexpr IID ITypedEventHandler<IInspectable>::kIid{
    0xab54de2d, 0x97d9, 0x5528, {0xb6, 0xad, 0x10, 0x5a, 0xfe, 0x15, 0x65, 0x30}};
template <>
inline constexpr IID ITypedEventHandler<IToastDismissedEventArgs>::kIid{
    0x61c2402f, 0x0ed0, 0x5a18, {0xab, 0x69, 0x59, 0xf4, 0xaa, 0x99, 0xa3, 0x68}};
template <>
inline constexpr IID ITypedEventHandler<IToastFailedEventArgs>::kIid{
    0x95e3e803, 0xc969, 0x5e3a, {0x97, 0x53, 0xea, 0x2a, 0xd2, 0x2a, 0x9a, 0x33}};

struct IToastNotification : IInspectable
{
    static constexpr IID kIid{
        0x997e2675, 0x059e, 0x4e60, {0x8b, 0x06, 0x17, 0x60, 0x91, 0x7c, 0x8b, 0x80}};
    FABREL_PLACE(get_Content);
    FABREL_PLACE(put_ExpirationTime);
    FABREL_PLACE(get_ExpirationTime);
    virtual HRESULT STDMETHODCALLTYPE
    add_Dismissed(ITypedEventHandler<IToastDismissedEventArgs> * gestionnaire,
                  EventRegistrationToken * jeton) = 0;
    FABREL_PLACE(remove_Dismissed);
    virtual HRESULT STDMETHODCALLTYPE add_Activated(ITypedEventHandler<IInspectable> * gestionnaire,
                                                    EventRegistrationToken * jeton) = 0;
    FABREL_PLACE(remove_Activated);
    virtual HRESULT STDMETHODCALLTYPE
    add_Failed(ITypedEventHandler<IToastFailedEventArgs> * gestionnaire,
               EventRegistrationToken * jeton) = 0;
};

struct IToastNotification6 : IInspectable
{
    static constexpr IID kIid{
        0x43ebfe53, 0x89ae, 0x5c1e, {0xa2, 0x79, 0x3a, 0xec, 0xfe, 0x9b, 0x6f, 0x54}};
    FABREL_PLACE(get_ExpiresOnReboot);
    virtual HRESULT STDMETHODCALLTYPE put_ExpiresOnReboot(boolean valeur) = 0;
};

struct IToastNotificationFactory : IInspectable
{
    static constexpr IID kIid{
        0x04124b20, 0x82c6, 0x4229, {0xb1, 0x09, 0xfd, 0x9e, 0xd4, 0x66, 0x2b, 0x53}};
    virtual HRESULT STDMETHODCALLTYPE
    CreateToastNotification(IXmlDocument * document, IToastNotification ** notification) = 0;
};

struct IToastNotifier : IInspectable
{
    static constexpr IID kIid{
        0x75927b93, 0x03f3, 0x41ec, {0x91, 0xd3, 0x6e, 0x5b, 0xac, 0x1b, 0x38, 0xe7}};
    virtual HRESULT STDMETHODCALLTYPE Show(IToastNotification * notification) = 0;
    virtual HRESULT STDMETHODCALLTYPE Hide(IToastNotification * notification) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Setting(Enumeration * reglage) = 0;
};

struct IToastNotificationManagerStatics : IInspectable
{
    static constexpr IID kIid{
        0x50ac103f, 0xd235, 0x4598, {0xbb, 0xef, 0x98, 0xfe, 0x4d, 0x1a, 0x3a, 0xd4}};
    FABREL_PLACE(CreateToastNotifier);
    virtual HRESULT STDMETHODCALLTYPE CreateToastNotifierWithId(HSTRING identifiantApplication,
                                                                IToastNotifier ** notificateur) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetTemplateContent(Enumeration type,
                                                         IXmlDocument ** document) = 0;
};

#undef FABREL_PLACE

} // namespace AbiWinRT

#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif
