#pragma once
// The one owner of the program's shared records (Entrada, Fecha, Operacion, DecDatos, ConDatos,
// the lists, ActOnline, ...). Each record is created at its first use and lives until the
// process ends, so the panels can hand a record over to the next panel; Reiniciar() puts every
// record back to its state at creation, in place, so references taken earlier stay valid.
//
// Each record's module keeps its own accessor (`cDecDatos& DecDatos()`), a thin function over
// Estado().de<cDecDatos>(), so this layer knows none of the record types.
#include <cstdint>
#include <functional>
#include <memory>
#include <typeindex>
#include <unordered_map>
#include <vector>

class cEstado {
public:
    template <typename T>
    T& de()
    {
        const std::type_index clave(typeid(T));
        if (auto it = m_registros.find(clave); it != m_registros.end())
            return *static_cast<T*>(it->second.get());
        auto nuevo = std::make_unique<T>();
        T* registro = nuevo.get();
        m_registros.emplace(clave, Propio(nuevo.release(), [](void* p) { delete static_cast<T*>(p); }));
        m_reinicios.push_back([registro] { *registro = T(); });
        return *registro;
    }

    // Every record as new, the program's language and the application-wide values of
    // General.h as at start, and every cache of derived data (fonts, pictures) to be made again.
    void Reiniciar();

    // Caches kept per thread (the printed sheet's fonts and pictures, made on the threads that
    // paint in parallel) cannot be reached from here: each compares the generation it was made
    // in with this one, and starts again when Reiniciar has moved it on.
    static uint64_t Generacion();

private:
    using Propio = std::unique_ptr<void, void (*)(void*)>;
    std::unordered_map<std::type_index, Propio> m_registros;
    std::vector<std::function<void()>> m_reinicios;
};

cEstado& Estado();
