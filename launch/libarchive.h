// The library that reads archives, as it is called here. It is loaded at the first archive: with the
// libraries that it needs itself it would cost each start of the program a millisecond and a mebibyte.
#pragma once

#include <archive.h>
#include <archive_entry.h>

namespace launch::libarchive {

// False where this machine doesn't have the library.
bool Esta();

// Where the library has it; raises DeviceError where this machine doesn't have the library, or another one.
void *Direccion(const char *nombre);

template <typename Funcion> class Llamada {
public:
    explicit constexpr Llamada(const char *nombre)
        : m_nombre(nombre)
    {
    }

    template <typename... Argumentos> auto operator()(Argumentos... argumentos) const
    {
        return reinterpret_cast<Funcion *>(Direccion(m_nombre))(argumentos...);
    }

private:
    const char *m_nombre;
};

inline constexpr Llamada<decltype(archive_read_new)> read_new("archive_read_new");
inline constexpr Llamada<decltype(archive_read_free)> read_free("archive_read_free");
inline constexpr Llamada<decltype(archive_read_support_format_zip)> read_support_format_zip(
    "archive_read_support_format_zip");
inline constexpr Llamada<decltype(archive_read_support_format_zip_seekable)> read_support_format_zip_seekable(
    "archive_read_support_format_zip_seekable");
inline constexpr Llamada<decltype(archive_read_set_options)> read_set_options("archive_read_set_options");
inline constexpr Llamada<decltype(archive_read_set_passphrase_callback)> read_set_passphrase_callback(
    "archive_read_set_passphrase_callback");
inline constexpr Llamada<decltype(archive_read_set_callback_data)> read_set_callback_data(
    "archive_read_set_callback_data");
inline constexpr Llamada<decltype(archive_read_set_read_callback)> read_set_read_callback(
    "archive_read_set_read_callback");
inline constexpr Llamada<decltype(archive_read_set_skip_callback)> read_set_skip_callback(
    "archive_read_set_skip_callback");
inline constexpr Llamada<decltype(archive_read_set_seek_callback)> read_set_seek_callback(
    "archive_read_set_seek_callback");
inline constexpr Llamada<decltype(archive_read_open1)> read_open1("archive_read_open1");
inline constexpr Llamada<decltype(archive_read_open_filename)> read_open_filename(
    "archive_read_open_filename");
inline constexpr Llamada<decltype(archive_read_next_header)> read_next_header("archive_read_next_header");
inline constexpr Llamada<decltype(archive_read_data)> read_data("archive_read_data");
inline constexpr Llamada<void(archive *, int, const char *, ...)> set_error("archive_set_error");
inline constexpr Llamada<decltype(archive_entry_pathname)> entry_pathname("archive_entry_pathname");
inline constexpr Llamada<decltype(archive_entry_filetype)> entry_filetype("archive_entry_filetype");
inline constexpr Llamada<decltype(archive_entry_perm)> entry_perm("archive_entry_perm");
inline constexpr Llamada<decltype(archive_entry_is_data_encrypted)> entry_is_data_encrypted(
    "archive_entry_is_data_encrypted");

} // namespace launch::libarchive
