// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/CarpetaAbierta.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Rutas.h"
#include "shell/core/system/windows/Descriptor.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <winternl.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr ACCESS_MASK AccesoACarpeta =
    FILE_LIST_DIRECTORY | FILE_TRAVERSE | FILE_READ_ATTRIBUTES | SYNCHRONIZE;
constexpr DWORD Compartida = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// A whole path as the system takes it without limit of length and without a look at its names.
std::wstring rutaLarga(const QString &ruta)
{
    const QString entera =
        QDir::toNativeSeparators(QFileInfo(rutaExistente(ruta)).absoluteFilePath());
    const bool deRed = entera.startsWith(u"\\\\"_s);
    return (deRed ? u"\\\\?\\UNC"_s + entera.sliced(1) : u"\\\\?\\"_s + entera).toStdWString();
}

/// The folder itself, or an error in the place of a reparse point.
std::shared_ptr<Descriptor> sinEnlace(Descriptor carpeta, const QString &ruta)
{
    if (!carpeta.abierto())
        falla(ruta);
    if (carpeta.estado(ruta).dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT)
        falla(ruta, ERROR_DIRECTORY);
    return std::make_shared<Descriptor>(std::move(carpeta));
}

} // namespace

CarpetaAbierta::CarpetaAbierta(std::shared_ptr<Descriptor> carpeta, const QString &ruta)
    : m_carpeta(std::move(carpeta)), m_ruta(ruta)
{
}

CarpetaAbierta::CarpetaAbierta(const QString &ruta)
    : m_carpeta(std::make_shared<Descriptor>(::CreateFileW(rutaLarga(ruta).c_str(), AccesoACarpeta,
                                                           Compartida, nullptr, OPEN_EXISTING,
                                                           FILE_FLAG_BACKUP_SEMANTICS, nullptr))),
      m_ruta(ruta)
{
    if (!m_carpeta->abierto())
        falla(m_ruta);
    if (!(m_carpeta->estado(m_ruta).dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        falla(m_ruta, ERROR_DIRECTORY);
}

CarpetaAbierta CarpetaAbierta::subcarpeta(const QString &nombre) const
{
    const QString ruta = rutaDe(nombre);
    return CarpetaAbierta(
        sinEnlace(abreEntrada(*m_carpeta, nombre, {AccesoACarpeta, FILE_OPEN, FILE_DIRECTORY_FILE}),
                  ruta),
        ruta);
}

/// What the folder grants is inherited by what is made in it.
CarpetaAbierta CarpetaAbierta::subcarpetaCreada(const QString &nombre) const
{
    const QString ruta = rutaDe(nombre);
    return CarpetaAbierta(
        sinEnlace(
            abreEntrada(*m_carpeta, nombre, {AccesoACarpeta, FILE_OPEN_IF, FILE_DIRECTORY_FILE}),
            ruta),
        ruta);
}

bool CarpetaAbierta::tiene(const QString &nombre) const
{
    return abreEntrada(*m_carpeta, nombre, {FILE_READ_ATTRIBUTES, FILE_OPEN, 0}).abierto();
}

QList<CarpetaAbierta::Entrada> CarpetaAbierta::entradas() const
{
    QList<Entrada> halladas;
    alignas(FILE_ID_BOTH_DIR_INFO) std::array<char, 65536> bufer;
    auto clase = FileIdBothDirectoryRestartInfo;
    while (::GetFileInformationByHandleEx(m_carpeta->asa(), clase, bufer.data(), bufer.size())) {
        clase = FileIdBothDirectoryInfo;
        const FILE_ID_BOTH_DIR_INFO *entrada = nullptr;
        DWORD siguiente = 0;
        const char *lugar = bufer.data();
        do {
            entrada = reinterpret_cast<const FILE_ID_BOTH_DIR_INFO *>(lugar);
            const QString nombre = QString::fromWCharArray(
                entrada->FileName, static_cast<qsizetype>(entrada->FileNameLength / sizeof(WCHAR)));
            const DWORD es = entrada->FileAttributes;
            if (nombre != u"."_s && nombre != u".."_s)
                halladas << Entrada{nombre, (es & FILE_ATTRIBUTE_DIRECTORY) &&
                                                !(es & FILE_ATTRIBUTE_REPARSE_POINT)};
            siguiente = entrada->NextEntryOffset;
            lugar += siguiente;
        } while (siguiente != 0);
    }
    const DWORD fin = ::GetLastError();
    if (fin != ERROR_NO_MORE_FILES && fin != ERROR_FILE_NOT_FOUND)
        falla(m_ruta, fin);
    return halladas;
}

QByteArray CarpetaAbierta::lee(const QString &nombre, qint64 maximo) const
{
    const Descriptor archivo =
        abreEntrada(*m_carpeta, nombre,
                    {FILE_READ_DATA | FILE_READ_ATTRIBUTES, FILE_OPEN, FILE_NON_DIRECTORY_FILE});
    if (!archivo.abierto() && ::GetLastError() == ERROR_FILE_NOT_FOUND)
        throw ErrorEjecucion(ErrorEjecucion::ArchivoNoEncontrado, rutaDePlataforma(rutaDe(nombre)));
    if (!archivo.abierto())
        falla(rutaDe(nombre));
    if (::GetFileType(archivo.asa()) != FILE_TYPE_DISK ||
        archivo.estado(rutaDe(nombre)).dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT)
        falla(rutaDe(nombre), ERROR_ACCESS_DENIED);
    QByteArray bytes;
    constexpr qint64 trozo = 1 << 20;
    while (bytes.size() < maximo) {
        const qsizetype leido = bytes.size();
        const auto cabe = static_cast<DWORD>(std::min<qint64>(trozo, maximo - leido));
        bytes.resize(leido + cabe);
        DWORD n = 0;
        if (!::ReadFile(archivo.asa(), bytes.data() + leido, cabe, &n, nullptr))
            falla(rutaDe(nombre));
        bytes.resize(leido + n);
        if (n == 0)
            break;
    }
    return bytes;
}
