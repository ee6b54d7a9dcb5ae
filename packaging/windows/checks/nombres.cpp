// SPDX-License-Identifier: GPL-3.0-or-later

// What a screen reader is told of a program's windows, asked for from another process by UI
// Automation: a line for each control, indented as they stand in each other, with its type and its
// name. Ends with 1 where a control that the keyboard reaches has no name, with 2 where there is no
// such window or nothing in it. Usage: nombres TITLE

#include <cstdio>
#include <cwchar>
#include <string>
#include <windows.h>

#include <oleauto.h>

// Of uiautomationcore.dll, for which there is neither an import library nor a header that C++
// takes.
struct Condicion
{
    int clase; // 0: all
};
struct Pedido
{
    Condicion *vista;
    int alcance;
    int *propiedades;
    int cuantas;
    int *patrones;
    int cuantos;
    int modo;
};

namespace {

using Nodo = void *;
constexpr int Siguiente = 1, PrimerHijo = 3;

template <typename Funcion>
Funcion *funcion(const char *nombre)
{
    static const HMODULE biblioteca = ::LoadLibraryA("uiautomationcore.dll");
    return reinterpret_cast<Funcion *>(
        reinterpret_cast<void *>(::GetProcAddress(biblioteca, nombre)));
}
const auto nodoDe = funcion<HRESULT WINAPI(HWND, Nodo *)>("UiaNodeFromHandle");
const auto nodoEn = funcion<HRESULT WINAPI(VARIANT *, Nodo *)>("UiaHUiaNodeFromVariant");
const auto propiedad = funcion<HRESULT WINAPI(Nodo, int, VARIANT *)>("UiaGetPropertyValue");
const auto vecino =
    funcion<HRESULT WINAPI(Nodo, int, Condicion *, Pedido *, SAFEARRAY **, BSTR *)>("UiaNavigate");

struct Cuenta
{
    int controles = 0, alcanzables = 0, sinNombre = 0;
};

VARIANT valor(Nodo nodo, int cual)
{
    VARIANT leido;
    ::VariantInit(&leido);
    propiedad(nodo, cual, &leido);
    return leido;
}

std::string enUtf8(const wchar_t *texto)
{
    std::string bytes(4 * std::wcslen(texto) + 1, '\0');
    const int escritos = ::WideCharToMultiByte(CP_UTF8, 0, texto, -1, bytes.data(),
                                               int(bytes.size()), nullptr, nullptr);
    bytes.resize(escritos > 0 ? std::size_t(escritos) - 1 : 0);
    return bytes;
}

Nodo hacia(Nodo nodo, int rumbo)
{
    Condicion todos{0};
    Pedido nada{&todos, 1, nullptr, 0, nullptr, 0, 1};
    SAFEARRAY *hallado = nullptr;
    BSTR forma = nullptr;
    if (vecino(nodo, rumbo, &todos, &nada, &hallado, &forma) < 0 || !hallado)
        return nullptr;
    LONG lugar[2] = {0, 0};
    VARIANT elemento;
    ::VariantInit(&elemento);
    Nodo otro = nullptr;
    if (::SafeArrayGetElement(hallado, lugar, &elemento) >= 0)
        nodoEn(&elemento, &otro);
    return otro;
}

void recorre(Nodo nodo, int hondo, Cuenta &cuenta)
{
    constexpr int tipo = 30003, nombre = 30005, alcanzable = 30009;
    const VARIANT dicho = valor(nodo, nombre), llega = valor(nodo, alcanzable);
    const bool tiene = dicho.vt == VT_BSTR && ::SysStringLen(dicho.bstrVal) > 0;
    const bool teclado = llega.vt == VT_BOOL && llega.boolVal;
    ++cuenta.controles;
    cuenta.alcanzables += teclado;
    cuenta.sinNombre += teclado && !tiene;
    std::printf("%*s%ld%s %s\n", 2 * hondo, "", valor(nodo, tipo).lVal, teclado ? " *" : "",
                tiene ? enUtf8(dicho.bstrVal).c_str() : "-");
    for (Nodo hijo = hacia(nodo, PrimerHijo); hijo; hijo = hacia(hijo, Siguiente))
        recorre(hijo, hondo + 1, cuenta);
}

} // namespace

int wmain(int argc, wchar_t *argv[])
{
    ::CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    const HWND ventana = argc > 1 ? ::FindWindowW(nullptr, argv[1]) : nullptr;
    Nodo nodo = nullptr;
    if (!ventana || nodoDe(ventana, &nodo) < 0 || !nodo) {
        std::fprintf(stderr, "no window of that title can be asked\n");
        return 2;
    }
    Cuenta cuenta;
    recorre(nodo, 0, cuenta);
    std::printf("controls: %d, of them for the keyboard: %d, without a name: %d\n",
                cuenta.controles, cuenta.alcanzables, cuenta.sinNombre);
    if (cuenta.alcanzables == 0)
        return 2;
    return cuenta.sinNombre == 0 ? 0 : 1;
}
