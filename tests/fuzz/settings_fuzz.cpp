// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Three lines, a section, a key and a text, escaped as in a file; then the file.

#include <algorithm>
#include <array>
#include <cmath>

#include "settings/ini_file.h"
#include "settings/number.h"
#include "settings/store.h"
#include "tests/fuzz/target.h"
#include "tests/settings/folder.h"

using namespace settings;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QByteArray file = QByteArray::fromStdString({data, data + size});
    std::array<QString, 3> names;
    for (QString& name : names) {
        const QByteArray line = file.left(file.indexOf('\n'));
        name = valueIn("name=" + line, {}, u"name"_s).value_or(none);
        file = file.mid(line.size() + 1);
    }
    const auto& [section, key, text] = names;
    const auto old = valueIn(file, section, key);
    const QByteArray changed = withValue(file, section, key, text);
    law(valueIn(changed, section, key) == text, "what was put in comes back");
    law(changed == file || old != text, "what is there already changes nothing");
    law(isIniFile(changed) || !(isIniFile(file) || file.isEmpty()), "a settings file stays one");
    const auto [from, fromChanged] = std::mismatch(file.cbegin(), file.cend(), changed.cbegin(), changed.cend());
    const auto same = from - file.cbegin();
    const auto to = std::mismatch(file.crbegin(), file.crend() - same, changed.crbegin(), changed.crend() - same).first;
    law(std::find(from, to.base(), '\n') == to.base() && (old || from == to.base()), "every other line stays");

    const QString level = u"0"_s;
    const bool isOther = section != init || key != level;
    law(!isOther || valueIn(changed, init, level) == valueIn(file, init, level), "every other key keeps its text");

    const auto best = [&](const Store& store) { return numberIn(store.read(init, level, {})).value_or(-HUGE_VAL); };
    const Folder folder;
    folder.put(file);
    Store store(folder.ini);
    const double before = best(store);
    store.raise(init, level, text);
    store.write(section, key, text);
    store.flush();
    const Store another(folder.ini);
    law(another.read(section, key, none) == text, "what was written is stored");
    law(!isOther || best(another) >= std::max(before, numberIn(text).value_or(before)), "no best score falls");
    law(isIniFile(file) || file.isEmpty() || folder.bytes(u".bad"_s) == file, "what is no settings file is kept");
    return 0;
}
