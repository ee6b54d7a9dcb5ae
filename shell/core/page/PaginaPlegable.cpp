// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/page/PaginaPlegable.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/page/TextoBuscado.h"
#include "shell/core/page/TrozosDePagina.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// What stands in a line of text; all else begins a block of its own.
bool esDeLinea(const QString &nombre)
{
    static const QSet<QString> nombres{u"a"_s,   u"b"_s,   u"i"_s,    u"em"_s,   u"strong"_s,
                                       u"sup"_s, u"sub"_s, u"span"_s, u"code"_s, u"kbd"_s,
                                       u"var"_s, u"img"_s, u"br"_s};
    return nombres.contains(nombre);
}

} // namespace

/// One pass over the pieces of a page.
class PaginaPlegable::Lector
{
public:
    Lector(PaginaPlegable &pagina, const QString &texto, bool conBloques)
        : m_pagina(pagina), m_trozos(trozosDePagina(texto)), m_conBloques(conBloques)
    {
        // What has no body is all body.
        m_enCuerpo = !texto.contains(u"<body"_s);
        for (m_i = 0; m_i < m_trozos.size(); ++m_i)
            lee(m_trozos[m_i]);
        agregaDescripcion();
        while (!m_abiertos.isEmpty())
            cierraPliegue();
        terminaBloque();
        vuelcaHtml();
    }

private:
    void lee(const TrozoDePagina &trozo)
    {
        if (trozo.tipo == TrozoDePagina::Texto)
            leeTexto(trozo);
        else if (trozo.tipo != TrozoDePagina::Otro)
            leeEtiqueta(trozo);
        else
            m_html += trozo.codigo;
    }

    void leeTexto(const TrozoDePagina &trozo)
    {
        m_html += trozo.codigo;
        if (!m_enCuerpo || !m_conBloques)
            return;
        const QString texto = trozo.texto();
        for (const QChar letra : texto) {
            if (m_enPre && letra == u'\n') {
                terminaBloque();
                continue;
            }
            // Blanks count once, but for those that do not break.
            const bool blanco = letra.isSpace() && letra != QChar::Nbsp;
            if (!blanco || m_enPre)
                m_bloque += letra;
            else if (!m_bloque.isEmpty() && m_bloque.back() != u' ')
                m_bloque += u' ';
        }
    }

    void leeEtiqueta(const TrozoDePagina &trozo)
    {
        const bool abre = trozo.tipo == TrozoDePagina::Abre;
        m_enCuerpo = m_enCuerpo || trozo.nombre == u"body";
        if (trozo.nombre == u"pre")
            m_enPre = abre;
        if (!esDeLinea(trozo.nombre))
            terminaBloque();
        else if (trozo.nombre == u"br")
            m_bloque += QChar::LineSeparator;
        if (abre)
            anota(trozo);
        if (trozo.nombre == u"details") {
            abre ? abrePliegue(trozo.atributo(u"class"_s)) : cierraPliegue();
        } else if (trozo.nombre == u"summary" && abre && !m_abiertos.isEmpty()) {
            leeTitulo();
        } else if (trozo.nombre == u"script") {
            salta(u"script"_s);
        } else {
            m_html += trozo.codigo;
        }
        if (trozo.nombre == u"p" && !abre && !m_descripcion.isEmpty() && !leSigueElPie())
            agregaDescripcion();
    }

    /// What is to be found again later: places, questions, figures, the contents.
    void anota(const TrozoDePagina &trozo)
    {
        const QString lugar = trozo.atributo(u"id"_s);
        if (!lugar.isEmpty())
            m_pagina.m_pliegueDeLugar.insert(lugar, alFrente());
        const QString respuesta = trozo.atributo(u"data-respuesta"_s);
        if (!lugar.isEmpty() && !respuesta.isEmpty())
            m_pagina.m_preguntas.insert(lugar, {primerParrafo(), respuesta});
        if (trozo.nombre == u"img" && !trozo.atributo(u"alt"_s).isEmpty())
            m_descripcion = trozo.atributo(u"alt"_s);
        if (trozo.nombre == u"nav")
            anotaContenido();
    }

    QString primerParrafo() const
    {
        QString html;
        bool dentro = false;
        for (qsizetype i = m_i + 1; i < m_trozos.size(); ++i) {
            const TrozoDePagina &trozo = m_trozos[i];
            if (trozo.nombre == u"p" && trozo.tipo == TrozoDePagina::Cierra)
                break;
            if (dentro)
                html += trozo.codigo;
            dentro = dentro || trozo.nombre == u"p";
        }
        return html;
    }

    void anotaContenido()
    {
        Apartado *apartado = nullptr;
        for (qsizetype i = m_i + 1; i < m_trozos.size() && m_trozos[i].nombre != u"nav"; ++i) {
            const TrozoDePagina &trozo = m_trozos[i];
            if (trozo.tipo == TrozoDePagina::Texto && apartado)
                apartado->titulo += trozo.texto();
            if (trozo.nombre == u"a")
                apartado = nullptr;
            const QString destino = trozo.nombre == u"a" ? trozo.atributo(u"href"_s) : QString();
            if (!destino.startsWith(u'#'))
                continue;
            m_pagina.m_contenido << Apartado{destino.sliced(1), {}};
            apartado = &m_pagina.m_contenido.last();
        }
    }

    /// The alternative text of a figure follows its caption.
    bool leSigueElPie() const
    {
        for (qsizetype i = m_i + 1; i < m_trozos.size(); ++i) {
            const TrozoDePagina &trozo = m_trozos[i];
            if (trozo.tipo == TrozoDePagina::Abre)
                return trozo.atributo(u"class"_s) == u"pie";
        }
        return false;
    }

    void agregaDescripcion()
    {
        if (m_descripcion.isEmpty())
            return;
        const QString texto = std::exchange(m_descripcion, {});
        const QString titulo = Traduce(u"Qué muestra la figura"_s);
        abrePliegue(u"descripcion"_s);
        m_pagina.m_piezas << Pieza{Pieza::Titulo, titulo, alFrente()};
        m_pagina.m_bloques << Bloque{titulo, m_pagina.m_padres[alFrente()]};
        m_pagina.m_piezas << Pieza{Pieza::Abre, {}, alFrente()};
        m_html += u"<p>"_s + texto.toHtmlEscaped() + u"</p>"_s;
        m_bloque = texto;
        cierraPliegue();
    }

    void abrePliegue(const QString &clase)
    {
        terminaBloque();
        vuelcaHtml();
        m_pagina.m_padres << alFrente();
        m_pagina.m_clases << clase;
        m_abiertos << m_pagina.pliegues() - 1;
    }

    /// From behind the opening tag of a summary to its closing one.
    void leeTitulo()
    {
        vuelcaHtml();
        QString texto;
        for (++m_i; m_i < m_trozos.size() && m_trozos[m_i].nombre != u"summary"; ++m_i) {
            m_html += m_trozos[m_i].codigo;
            if (m_trozos[m_i].tipo == TrozoDePagina::Texto)
                texto += m_trozos[m_i].texto();
        }
        m_pagina.m_piezas << Pieza{Pieza::Titulo, std::exchange(m_html, {}), alFrente()};
        m_pagina.m_bloques << Bloque{texto.simplified(), m_pagina.m_padres[alFrente()]};
        m_pagina.m_piezas << Pieza{Pieza::Abre, {}, alFrente()};
    }

    void cierraPliegue()
    {
        terminaBloque();
        vuelcaHtml();
        if (!m_abiertos.isEmpty())
            m_pagina.m_piezas << Pieza{Pieza::Cierra, {}, m_abiertos.takeLast()};
    }

    void salta(const QString &nombre)
    {
        while (m_i < m_trozos.size() &&
               !(m_trozos[m_i].nombre == nombre && m_trozos[m_i].tipo == TrozoDePagina::Cierra))
            ++m_i;
    }

    void terminaBloque()
    {
        const QString texto = std::exchange(m_bloque, {});
        if (!texto.isEmpty() && m_enCuerpo)
            m_pagina.m_bloques << Bloque{texto, alFrente()};
    }

    void vuelcaHtml()
    {
        if (!m_html.isEmpty())
            m_pagina.m_piezas << Pieza{Pieza::Html, std::exchange(m_html, {}), -1};
    }

    int alFrente() const { return m_abiertos.isEmpty() ? -1 : m_abiertos.last(); }

    PaginaPlegable &m_pagina;
    const QList<TrozoDePagina> m_trozos;
    qsizetype m_i = 0;
    const bool m_conBloques;
    bool m_enCuerpo = false;
    bool m_enPre = false; ///< where blanks and ends of lines count
    QString m_html, m_bloque;
    QString m_descripcion; ///< of the figure whose caption may still follow
    QList<int> m_abiertos;
};

PaginaPlegable::PaginaPlegable(const QString &pagina) : m_texto(pagina)
{
    Lector(*this, pagina, /*conBloques*/ false);
}

QString PaginaPlegable::muestra(const QSet<int> &abiertos) const
{
    QString html;
    int oculto = -1; // the fold by which all is left out
    for (const Pieza &pieza : m_piezas) {
        if (oculto >= 0) {
            if (pieza.tipo == Pieza::Cierra && pieza.pliegue == oculto)
                oculto = -1;
            continue;
        }
        const bool abierto = abiertos.contains(pieza.pliegue);
        if (pieza.tipo == Pieza::Html)
            html += pieza.html;
        else if (pieza.tipo == Pieza::Titulo)
            html += u"<p class=\"pliegue %1\"><a href=\"pliegue:%2\">%3 %4</a></p>"_s.arg(
                m_clases[pieza.pliegue], QString::number(pieza.pliegue), abierto ? u"▾"_s : u"▸"_s,
                pieza.html);
        else if (pieza.tipo == Pieza::Cierra)
            html += u"</div>"_s;
        else if (abierto)
            html += u"<div class=\"plegado %1\">"_s.arg(m_clases[pieza.pliegue]);
        else
            oculto = pieza.pliegue;
    }
    return html;
}

QList<int> PaginaPlegable::alrededor(int pliegue) const
{
    QList<int> pliegues;
    for (int i = pliegue; i >= 0; i = m_padres[i])
        pliegues.prepend(i);
    return pliegues;
}

std::optional<PaginaPlegable::Pregunta> PaginaPlegable::pregunta(const QString &lugar) const
{
    const auto hallada = m_preguntas.find(lugar);
    return hallada == m_preguntas.end() ? std::nullopt : std::optional(*hallada);
}

QList<int> PaginaPlegable::halla(const QString &buscado)
{
    if (!m_texto.isEmpty()) {
        PaginaPlegable leida;
        Lector(leida, std::exchange(m_texto, {}), /*conBloques*/ true);
        m_bloques = leida.m_bloques;
    }
    QList<int> pliegues;
    for (const Bloque &bloque : m_bloques) {
        for (qsizetype n = ::halla(buscado, bloque.texto).size(); n > 0; --n)
            pliegues << bloque.pliegue;
    }
    return pliegues;
}
