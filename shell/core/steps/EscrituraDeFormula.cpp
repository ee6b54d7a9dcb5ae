// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/steps/EscrituraDeFormula.h"

#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"

#include <QHash>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

using Nodo = NodoDeFormula;

/// What a language calls the signs, and how it puts pieces together.
class Escritura
{
public:
    virtual ~Escritura() = default;

    QString nodo(const Nodo &n) const
    {
        switch (n.clase) {
        case Nodo::Numero:
        case Nodo::Palabra:
            return hoja(n);
        case Nodo::Nombre:
            return nombre(n);
        case Nodo::Puntos:
            return u"…"_s;
        case Nodo::Opuesto:
            return signo(u"neg"_s) + parte(n, 0);
        case Nodo::Operacion:
            return parte(n, 0) + signo(n.texto) + parte(n, 1);
        case Nodo::Fraccion:
            return fraccion(n);
        case Nodo::Potencia:
            return potencia(n);
        case Nodo::Funcion:
            return funcion(n);
        case Nodo::Parentesis:
            return entreParentesis(partes(n));
        case Nodo::Relacion:
        case Nodo::Lista:
            return cadena(n);
        }
        return {};
    }

protected:
    virtual QString hoja(const Nodo &n) const { return n.texto; }
    virtual QString nombre(const Nodo &n) const = 0;
    virtual QString signo(const QString &escrito) const = 0;
    virtual QString fraccion(const Nodo &n) const = 0;
    virtual QString potencia(const Nodo &n) const = 0;
    virtual QString funcion(const Nodo &n) const = 0;
    virtual QString modulo(const Nodo &m) const = 0;
    virtual QString entreParentesis(const QString &dentro) const { return u'(' + dentro + u')'; }

    QString partes(const Nodo &n) const
    {
        QStringList escritas;
        for (const Nodo &parte : n.partes)
            escritas << nodo(parte);
        return escritas.join(u"; "_s);
    }

    /// Part i, between brackets where the sign before or behind it would take it apart.
    QString parte(const Nodo &n, std::size_t i) const
    {
        const QString escrita = nodo(n.partes[i]);
        return llevaParentesis(n, i) ? entreParentesis(escrita) : escrita;
    }

private:
    QString cadena(const Nodo &n) const
    {
        QString escrita = nodo(n.partes.front());
        for (qsizetype i = 0; i < n.signos.size(); ++i)
            escrita += signo(n.signos[i]) + nodo(n.partes[static_cast<std::size_t>(i) + 1]);
        return n.conModulo ? escrita + modulo(n.partes.back()) : escrita;
    }
};

bool esSimple(const Nodo &n)
{
    return n.clase == Nodo::Numero || n.clase == Nodo::Nombre || n.clase == Nodo::Parentesis ||
           n.clase == Nodo::Funcion;
}

class EnTexto final : public Escritura
{
    QString nombre(const Nodo &n) const override
    {
        return n.partes.empty() ? n.texto : n.texto + u'_' + agrupada(n.partes.front());
    }
    QString signo(const QString &escrito) const override
    {
        if (escrito == u"neg"_s)
            return u"−"_s;
        return escrito == u","_s ? u", "_s : u' ' + signoImpreso(escrito) + u' ';
    }
    QString fraccion(const Nodo &n) const override
    {
        return agrupada(n.partes[0]) + u'/' + agrupada(n.partes[1]);
    }
    QString potencia(const Nodo &n) const override
    {
        const Nodo &exponente = n.partes[1];
        const QString base = parte(n, 0);
        if (exponente.clase == Nodo::Numero && exponente.texto.size() <= 12)
            return base + enSuperindice(exponente.texto);
        return base + u'^' + agrupada(exponente);
    }
    QString funcion(const Nodo &n) const override
    {
        if (n.texto == u"floor"_s)
            return u'⌊' + partes(n) + u'⌋';
        if (n.texto == u"ceil"_s)
            return u'⌈' + partes(n) + u'⌉';
        if (n.texto == u"abs"_s)
            return u'|' + partes(n) + u'|';
        if (n.texto == u"factorial"_s)
            return agrupada(n.partes.front()) + u'!';
        return (n.texto == u"sqrt"_s ? u"√"_s : n.texto) + entreParentesis(partes(n));
    }
    QString modulo(const Nodo &m) const override { return u" (mod %1)"_s.arg(nodo(m)); }

    QString agrupada(const Nodo &n) const
    {
        return esSimple(n) ? nodo(n) : entreParentesis(nodo(n));
    }
};

class EnLatex final : public Escritura
{
    QString hoja(const Nodo &n) const override
    {
        return n.clase == Nodo::Palabra ? u"\\text{%1}"_s.arg(n.texto) : n.texto;
    }
    QString nombre(const Nodo &n) const override
    {
        const QString nombre =
            n.texto.size() > 1 ? u"\\operatorname{%1}"_s.arg(n.texto) : letra(n.texto);
        return n.partes.empty() ? nombre : u"%1_{%2}"_s.arg(nombre, nodo(n.partes.front()));
    }
    static QString letra(const QString &texto)
    {
        static const QHash<QString, QString> griegas = {
            {u"φ"_s, u"\\varphi"_s}, {u"λ"_s, u"\\lambda"_s}, {u"σ"_s, u"\\sigma"_s},
            {u"τ"_s, u"\\tau"_s},    {u"π"_s, u"\\pi"_s},     {u"α"_s, u"\\alpha"_s},
            {u"β"_s, u"\\beta"_s},   {u"ψ"_s, u"\\psi"_s},    {u"μ"_s, u"\\mu"_s}};
        return griegas.value(texto, texto);
    }
    QString signo(const QString &escrito) const override
    {
        static const QHash<QString, QString> signos = {
            {u"neg"_s, u"-"_s},        {u"*"_s, u" \\cdot "_s},     {u"mod"_s, u" \\bmod "_s},
            {u"!="_s, u" \\neq "_s},   {u"<="_s, u" \\leq "_s},     {u">="_s, u" \\geq "_s},
            {u"~"_s, u" \\approx "_s}, {u"=="_s, u" \\equiv "_s},   {u"|"_s, u" \\mid "_s},
            {u"!|"_s, u" \\nmid "_s},  {u"=>"_s, u" \\implies "_s}, {u","_s, u",\\ "_s}};
        return signos.value(escrito, u' ' + escrito + u' ');
    }
    QString fraccion(const Nodo &n) const override
    {
        return u"\\frac{%1}{%2}"_s.arg(nodo(n.partes[0]), nodo(n.partes[1]));
    }
    QString potencia(const Nodo &n) const override
    {
        return u"%1^{%2}"_s.arg(parte(n, 0), nodo(n.partes[1]));
    }
    QString funcion(const Nodo &n) const override
    {
        if (n.texto == u"sqrt"_s)
            return u"\\sqrt{%1}"_s.arg(partes(n));
        if (n.texto == u"floor"_s)
            return u"\\left\\lfloor %1 \\right\\rfloor"_s.arg(partes(n));
        if (n.texto == u"ceil"_s)
            return u"\\left\\lceil %1 \\right\\rceil"_s.arg(partes(n));
        if (n.texto == u"abs"_s)
            return u"\\left| %1 \\right|"_s.arg(partes(n));
        if (n.texto == u"factorial"_s)
            return (esSimple(n.partes.front()) ? partes(n) : entreParentesis(partes(n))) + u'!';
        const QString nombre =
            n.texto.size() > 1 ? u"\\operatorname{%1}"_s.arg(n.texto) : letra(n.texto);
        return nombre + entreParentesis(partes(n));
    }
    QString modulo(const Nodo &m) const override { return u" \\pmod{%1}"_s.arg(nodo(m)); }
    QString entreParentesis(const QString &dentro) const override
    {
        return u"\\left(%1\\right)"_s.arg(dentro);
    }
};

class EnPalabras final : public Escritura
{
    QString nombre(const Nodo &n) const override
    {
        return n.partes.empty() ? n.texto
                                : Traduce(u"%1 sub %2"_s).arg(n.texto, nodo(n.partes.front()));
    }
    QString signo(const QString &escrito) const override
    {
        if (escrito == u","_s)
            return u", "_s;
        const QString dicho = palabra(escrito);
        return escrito == u"neg"_s ? dicho + u' ' : u' ' + dicho + u' ';
    }
    static QString palabra(const QString &escrito)
    {
        static const QHash<QString, QString> palabras = {
            {u"+"_s, u"más"_s},          {u"-"_s, u"menos"_s},
            {u"neg"_s, u"menos"_s},      {u"*"_s, u"por"_s},
            {u"mod"_s, u"módulo"_s},     {u"="_s, u"igual a"_s},
            {u"!="_s, u"distinto de"_s}, {u"<"_s, u"menor que"_s},
            {u">"_s, u"mayor que"_s},    {u"<="_s, u"menor o igual que"_s},
            {u"~"_s, u"más o menos"_s},  {u">="_s, u"mayor o igual que"_s},
            {u"|"_s, u"divide a"_s},     {u"=="_s, u"congruente con"_s},
            {u"=>"_s, u"luego"_s},       {u"!|"_s, u"no divide a"_s}};
        return Traduce(palabras.value(escrito, escrito));
    }
    QString fraccion(const Nodo &n) const override
    {
        return Traduce(u"%1 partido por %2"_s).arg(nodo(n.partes[0]), nodo(n.partes[1]));
    }
    QString potencia(const Nodo &n) const override
    {
        return Traduce(u"%1 elevado a %2"_s).arg(nodo(n.partes[0]), nodo(n.partes[1]));
    }
    QString funcion(const Nodo &n) const override
    {
        return Traduce(u"%1 de %2"_s).arg(n.texto, partes(n));
    }
    QString modulo(const Nodo &m) const override { return Traduce(u", módulo %1"_s).arg(nodo(m)); }
};

} // namespace

QString comoTexto(const Formula &formula)
{
    return formula.vacia() ? QString() : comoTexto(formula.raiz());
}

QString comoTexto(const NodoDeFormula &nodo)
{
    return EnTexto().nodo(nodo);
}

QString comoLatex(const Formula &formula)
{
    return formula.vacia() ? QString() : EnLatex().nodo(formula.raiz());
}

QString comoPalabras(const Formula &formula)
{
    return formula.vacia() ? QString() : EnPalabras().nodo(formula.raiz());
}

QString signoImpreso(const QString &signo)
{
    static const QHash<QString, QString> impresos = {
        {u"-"_s, u"−"_s},  {u"*"_s, u"·"_s}, {u"!="_s, u"≠"_s}, {u"<="_s, u"≤"_s},
        {u">="_s, u"≥"_s}, {u"~"_s, u"≈"_s}, {u"=="_s, u"≡"_s}, {u"|"_s, u"∣"_s},
        {u"!|"_s, u"∤"_s}, {u"=>"_s, u"⇒"_s}};
    return impresos.value(signo, signo);
}
