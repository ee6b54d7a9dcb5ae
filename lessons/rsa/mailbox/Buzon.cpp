#include "lessons/rsa/mailbox/Buzon.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/rsa/key/FicheroDeClave.h"
#include "lessons/rsa/mailbox/ArchivoMensaje.h"
#include "lessons/rsa/mailbox/Borrador.h"
#include "lessons/rsa/mailbox/CarpetaBuzon.h"
#include "lessons/rsa/mailbox/ColMensajes.h"
#include "shell/core/Perfil.h"
#include "shell/core/Rutas.h"

#include <QSet>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString rutaDe(const QString &carpeta, const QString &nombre)
{
    return carpeta + u'\\' + nombre;
}

QString nombreDeMensaje(qint64 numero)
{
    return u"RSA"_s + QString::number(numero, 16).toUpper() + u".msg"_s;
}

bool esNombreDeMensaje(const QString &nombre)
{
    return nombre.startsWith(u"RSA"_s, Qt::CaseInsensitive) &&
           nombre.endsWith(u".msg"_s, Qt::CaseInsensitive);
}

/// Shorter names first, so that the numbers in them rise.
bool vaAntes(const QString &a, const QString &b)
{
    return a.size() != b.size() ? a.size() < b.size() : a.compare(b, Qt::CaseInsensitive) < 0;
}

QStringList mensajesDe(const CarpetaBuzon &carpeta)
{
    QStringList nombres = carpeta.entradas();
    nombres.removeIf([](const QString &nombre) { return !esNombreDeMensaje(nombre); });
    std::sort(nombres.begin(), nombres.end(), vaAntes);
    return nombres;
}

/// One scan of the mailbox.
class Revision
{
public:
    Revision(const QString &dirMensajes, ColMensajes &mensajes, Corrida &corrida)
        : m_dir(dirMensajes), m_mensajes(mensajes), m_corrida(corrida)
    {
    }

    int recorre()
    {
        const CarpetaBuzon buzon(m_dir);
        for (const QString &usuario : buzon.subcarpetas()) {
            intenta([&] { revisaUsuario(buzon, usuario); });
            if (m_corrida.detenida())
                break;
        }
        return m_ilegibles;
    }

private:
    /// What somebody locked, damaged or took away meanwhile keeps nobody from the rest.
    template <typename Accion>
    void intenta(Accion accion)
    {
        try {
            accion();
        } catch (const ErrorEjecucion &) {
            ++m_ilegibles;
        }
    }

    void revisaUsuario(const CarpetaBuzon &buzon, const QString &usuario)
    {
        const CarpetaBuzon carpeta = buzon.subcarpeta(usuario);
        for (const QString &nombre : mensajesDe(carpeta)) {
            intenta([&] { revisaMensaje(carpeta, usuario, nombre); });
            m_corrida.ceder();
            if (m_corrida.detenida())
                return;
        }
    }

    void revisaMensaje(const CarpetaBuzon &carpeta, const QString &usuario, const QString &nombre)
    {
        const auto cabecera = ArchivoMensaje::interpretaCabecera(
            carpeta.leePrincipio(nombre, ArchivoMensaje::MaximoDeCabecera));
        if (!cabecera)
            throw ErrorEjecucion(ErrorEjecucion::ErrorDeArchivo, nombre);
        m_mensajes.Anota(cabecera->remitente, usuario, cabecera->asunto,
                         rutaDe(rutaDe(m_dir, usuario), nombre));
    }

    QString m_dir;
    ColMensajes &m_mensajes;
    Corrida &m_corrida;
    int m_ilegibles = 0;
};

} // namespace

QString dejaMensaje(const QString &dirMensajes, const QString &destinatario,
                    const QByteArray &contenido)
{
    const CarpetaBuzon carpeta = CarpetaBuzon(dirMensajes).subcarpetaCreada(destinatario);
    Borrador borrador(carpeta, contenido);
    QSet<QString> ocupados;
    for (const QString &nombre : carpeta.entradas())
        ocupados.insert(nombre.toUpper());
    qint64 numero = 1;
    // Somebody else may take a name between the look and the link: then the next one is tried.
    while (ocupados.contains(nombreDeMensaje(numero).toUpper()) ||
           !borrador.nombraSiLibre(nombreDeMensaje(numero)))
        ++numero;
    return rutaDe(rutaDe(dirMensajes, destinatario), nombreDeMensaje(numero));
}

QByteArray leeMensaje(const QString &ruta)
{
    const QString limpia = rutaDePlataforma(ruta);
    const CarpetaBuzon buzon(limpia.section(u'/', 0, -3));
    return buzon.subcarpeta(limpia.section(u'/', -2, -2))
        .lee(limpia.section(u'/', -1), ArchivoMensaje::MaximoDeBytes);
}

ClavePublica leeClavePublica(const QString &dirMensajes, const QString &usuario)
{
    try {
        const CarpetaBuzon carpeta = CarpetaBuzon(dirMensajes).subcarpeta(usuario);
        Perfil fichero;
        fichero.leeBytes(carpeta.lee(FicheroClavePublica, Perfil::TamanoMaximo));
        return {fichero.valor(u"RSA"_s, u"q"_s), fichero.valor(u"RSA"_s, u"s"_s)};
    } catch (const ErrorEjecucion &) {
        return {};
    }
}

QStringList usuariosDelBuzon(const QString &dirMensajes)
{
    return dirMensajes.isEmpty() ? QStringList() : CarpetaBuzon(dirMensajes).subcarpetas();
}

int revisaBuzon(const QString &dirMensajes, ColMensajes &mensajes, Corrida &corrida)
{
    while (mensajes.Count() >= 1)
        mensajes.Remove(1);
    return dirMensajes.isEmpty() ? 0 : Revision(dirMensajes, mensajes, corrida).recorre();
}
