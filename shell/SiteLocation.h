// Locations that are held as text: URLs and places inside extensions and sites. Pure text, nothing is asked for.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace knav {

/// Begins with one of the schemes that make a URL of a typed text, in lower case.
bool isUrlLocation(std::wstring_view text) noexcept;

/// The URL with its scheme, which ends at the first ":", in lower case.
std::wstring withLowerScheme(std::wstring_view url);

/// The URL with its escapes in readable form; nullopt for one that is longer than a path may be.
std::optional<std::wstring> decodedUrl(const wchar_t* url);

/// Scheme, "://" and host, without what follows the host; empty when there is no "://" with something behind it.
std::wstring_view sitePrefix(std::wstring_view location) noexcept;

/// What follows "://" in a site prefix.
std::wstring_view serverName(std::wstring_view sitePrefix) noexcept;

/// What follows the last "/", or without one the last "\", or the whole text.
std::wstring_view lastName(std::wstring_view location) noexcept;

/// The location with "." and ".." resolved and every separator a "/"; ".." stops at the site's root. That is its site
/// prefix, or without one the `site` that it begins with, which stays as it is. Nothing when there is no root or the
/// result does not fit 259 characters.
std::optional<std::wstring> canonicalLocation(std::wstring_view location, std::wstring_view site = {});

/// The location that a typed text names inside a site, not yet canonical. Nothing when it is a URL of another site.
std::optional<std::wstring> locationInSite(std::wstring_view site, std::wstring_view text);

/// The name of a location relative to the site, without separators at its ends: empty for the site itself. A location
/// that is not below the site is returned whole.
std::wstring_view nameBelowSite(std::wstring_view site, std::wstring_view location) noexcept;

}  // namespace knav
