#pragma once
// The answer of an operation that may be refused: either its value or the verdict that tells
// the user why not (a message of the catalogue, the control to focus). A refusal is part of the
// answer; a fault of the disk or the database is not, and is raised as cFallo with its source.
#include "valores/Veredicto.h"

#include <optional>
#include <utility>
#include <variant>

template <typename T>
class Resultado {
public:
    Resultado(T valor) : m_contenido(std::in_place_index<0>, std::move(valor)) {}
    Resultado(Veredicto rechazo) : m_contenido(std::in_place_index<1>, std::move(rechazo)) {}

    bool aceptado() const { return m_contenido.index() == 0; }
    explicit operator bool() const { return aceptado(); }

    // Only on an accepted answer.
    const T& valor() const& { return std::get<0>(m_contenido); }
    T& valor() & { return std::get<0>(m_contenido); }
    T&& valor() && { return std::get<0>(std::move(m_contenido)); }
    const T* operator->() const { return &valor(); }
    const T& operator*() const& { return valor(); }

    // Only on a refusal.
    const Veredicto& veredicto() const { return std::get<1>(m_contenido); }

private:
    std::variant<T, Veredicto> m_contenido;
};

// An operation that answers nothing but whether it was done.
template <>
class Resultado<void> {
public:
    Resultado() = default;
    Resultado(Veredicto rechazo) : m_rechazo(std::move(rechazo)) {}

    bool aceptado() const { return !m_rechazo.has_value(); }
    explicit operator bool() const { return aceptado(); }
    const Veredicto& veredicto() const { return *m_rechazo; }

private:
    std::optional<Veredicto> m_rechazo;
};
