// SPDX-License-Identifier: GPL-3.0-or-later

// What a screen reader is told of a window, asked for from another process by UI Automation: its
// type and its name. Not of the controls in it: under Wine 8 the program never answers who goes on
// to them. Ends with 1 where it is told nothing. Usage: nombre TITLE

#include <cstdio>
#include <windows.h>

#include <oleauto.h>

namespace {

// Of uiautomationcore.dll, for which there is neither an import library nor a header that C++
// takes.
template <typename Funcion>
Funcion *funcion(const char *nombre)
{
    static const HMODULE biblioteca = ::LoadLibraryA("uiautomationcore.dll");
    return reinterpret_cast<Funcion *>(
        reinterpret_cast<void *>(::GetProcAddress(biblioteca, nombre)));
}

VARIANT valor(void *nodo, int cual)
{
    static const auto propiedad =
        funcion<HRESULT WINAPI(void *, int, VARIANT *)>("UiaGetPropertyValue");
    VARIANT leido;
    ::VariantInit(&leido);
    propiedad(nodo, cual, &leido);
    return leido;
}

} // namespace

int wmain(int argc, wchar_t *argv[])
{
    ::CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    const auto nodoDe = funcion<HRESULT WINAPI(HWND, void **)>("UiaNodeFromHandle");
    const HWND ventana = argc > 1 ? ::FindWindowW(nullptr, argv[1]) : nullptr;
    void *nodo = nullptr;
    if (!ventana || nodoDe(ventana, &nodo) < 0 || !nodo) {
        std::fprintf(stderr, "no window of that title can be asked\n");
        return 1;
    }
    constexpr int deTipo = 30003, deNombre = 30005;
    const VARIANT tipo = valor(nodo, deTipo), nombre = valor(nodo, deNombre);
    if (tipo.vt != VT_I4 || nombre.vt != VT_BSTR || ::SysStringLen(nombre.bstrVal) == 0)
        return 1;
    std::printf("%ld %ls\n", tipo.lVal, nombre.bstrVal);
    return 0;
}
