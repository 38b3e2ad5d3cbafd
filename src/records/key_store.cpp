#include "records/key_store.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>

#include <array>
#include <map>
#include <stdexcept>

namespace {

constexpr int Iterations = 256000;
constexpr std::size_t KeyBytes = 32;

/// By salt and password.
std::map<std::string, std::string, std::less<>> keptKeys;

void AppendHexadecimal(std::string& text, const unsigned char* bytes, std::size_t count)
{
    constexpr std::string_view digits = "0123456789abcdef";
    for (std::size_t i = 0; i < count; ++i) {
        text += digits[bytes[i] >> 4U];
        text += digits[bytes[i] & 15U];
    }
}

} // namespace

const std::string& DerivedKeyText(std::string_view password, std::string_view salt)
{
    const std::string name = std::string(salt) + std::string(password);
    if (const auto kept = keptKeys.find(name); kept != keptKeys.end())
        return kept->second;
    std::array<unsigned char, KeyBytes> key{};
    const auto* saltBytes = reinterpret_cast<const unsigned char*>(salt.data());
    if (PKCS5_PBKDF2_HMAC(password.data(), static_cast<int>(password.size()), saltBytes, static_cast<int>(salt.size()),
                          Iterations, EVP_sha512(), static_cast<int>(key.size()), key.data()) != 1)
        throw std::runtime_error("The key of the draw records could not be derived.");
    std::string& keyText = keptKeys[name];
    // A string that grows would leave its beginnings behind in memory.
    keyText.reserve(2 * (KeyBytes + salt.size()) + 3);
    keyText += "x'";
    AppendHexadecimal(keyText, key.data(), key.size());
    AppendHexadecimal(keyText, saltBytes, salt.size());
    keyText += '\'';
    OPENSSL_cleanse(key.data(), key.size());
    return keyText;
}

void WipeDerivedKeys()
{
    for (auto& [name, keyText] : keptKeys)
        OPENSSL_cleanse(keyText.data(), keyText.size());
    keptKeys.clear();
}
