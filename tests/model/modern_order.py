"""The order of the tracks with Modern on."""

import icu

from basics import is_stray, leading_number, settled, to_disk


def collator(language):
    """The Unicode collation of a locale name such as de_DE.UTF-8; the root order without a language."""
    name = language.split(".")[0].split("@")[0]
    locale = icu.Locale.getRoot() if name in ("", "C", "POSIX") else icu.Locale(name)
    found = icu.Collator.createInstance(locale)
    found.setStrength(icu.Collator.TERTIARY)
    found.setAttribute(icu.UCollAttribute.NORMALIZATION_MODE, icu.UCollAttributeValue.ON)
    return found


def language_of(environment):
    for name in ("LC_ALL", "LC_COLLATE", "LANG"):
        if environment.get(name):
            return environment[name]
    return ""


def in_order(tracks, order, language):
    collation = collator(language)

    def key(text):
        # Each byte of a path that is no UTF-8 is one U+FFFD.
        return collation.getSortKey("".join("\ufffd" if is_stray(each) else each for each in settled(text)))

    def by_path(track):
        return key(track.full_path), to_disk(track.full_path)

    def by_tags(track):
        return (
            key(track.album_artist or track.artist), key(track.album), leading_number(track.disc),
            leading_number(track.track), key(track.title), *by_path(track),
        )  # fmt: skip

    if order not in (1, 2):
        return sorted(tracks, key=by_path)
    ascending = sorted(tracks, key=by_tags)
    return ascending if order == 1 else ascending[::-1]
