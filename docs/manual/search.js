// SPDX-License-Identifier: MIT
// The search of the first page, over the sections in search-index.js; and the way on for links to places that the first
// page had when it was the whole manual. Without JavaScript there are the contents.
"use strict";

(() => {
    const most = 30;
    const excerptLength = 180;

    // Of the same length as the text, so that what is found in it is at the same place there.
    const folded = text => text.replace(/[A-Z]/g, letter => letter.toLowerCase()).replace(/[‘’]/g, "'")
        .replace(/[“”]/g, '"');

    // "recordings" and "stopped" find what has "record" and "stop" in it.
    const stem = word => {
        const short = word.replace(/(ings?|ed|es|s)$/, "");
        return short.length < 3 ? word : short === word ? word : short.replace(/([^aeiou])\1$/, "$1");
    };

    const small = new Set(("a an and are as at be by can do does for from how i if in is it me my of on or that the this to " +
        "what when where which why will with").split(" "));

    // Without the small words of a question, unless there are no others.
    const wordsOf = text => {
        const all = folded(text).split(/[\s,;:?!"]+/).filter(word => word);
        const telling = all.filter(word => !small.has(word));
        return [...new Set((telling.length ? telling : all).map(stem))];
    };

    // Where words begin with that.
    const placesOf = (text, word) => {
        const places = [];
        for (let place = text.indexOf(word); place >= 0; place = text.indexOf(word, place + word.length))
            if (place === 0 || !/[a-z0-9]/.test(text[place - 1])) places.push(place);
        return places;
    };
    const has = (text, word) => placesOf(text, word).length > 0;

    const sections = manualIndex.map(section => ({
        ...section,
        heading: folded(section.title),
        chapter: folded(section.page),
        words: folded(section.words || ""),
        body: folded(section.text),
    }));

    const weightOf = (section, word) =>
        (has(section.heading, word) ? 12 : 0) + (has(section.words, word) ? 8 : 0) + (has(section.chapter, word) ? 4 : 0) +
        Math.min(placesOf(section.body, word).length, 3);

    // Those that have the most of the words, the weightiest first.
    const sectionsWith = words => {
        const found = sections.map(section => {
            const weights = words.map(word => weightOf(section, word));
            return {section, hits: weights.filter(weight => weight).length, weight: weights.reduce((a, b) => a + b, 0)};
        });
        const best = Math.max(0, ...found.map(place => place.hits));
        return best === 0 ? [] : found.filter(place => place.hits === best).sort((a, b) => b.weight - a.weight)
            .map(place => place.section);
    };

    const marked = (text, words) => {
        const part = document.createElement("p");
        const hits = words.flatMap(word => placesOf(folded(text), word).map(place => ({place, end: place + word.length})))
            .sort((a, b) => a.place - b.place || b.end - a.end);
        let last = 0;
        for (const hit of hits) {
            if (hit.place < last) continue;
            const mark = document.createElement("mark");
            mark.textContent = text.slice(hit.place, hit.end);
            part.append(text.slice(last, hit.place), mark);
            last = hit.end;
        }
        part.append(text.slice(last));
        return part;
    };

    const excerpt = (section, words) => {
        const places = words.flatMap(word => placesOf(section.body, word));
        const hit = places.length ? Math.min(...places) : 0;
        const begin = hit < excerptLength / 2 ? 0 : section.text.lastIndexOf(" ", hit - excerptLength / 3) + 1;
        const isWhole = section.text.length <= begin + excerptLength;
        const end = isWhole ? section.text.length : section.text.lastIndexOf(" ", begin + excerptLength);
        return (begin ? "… " : "") + section.text.slice(begin, end) + (isWhole ? "" : " …");
    };

    const lineOf = (section, words) => {
        const line = document.createElement("li");
        const way = document.createElement("a");
        way.href = section.url;
        way.textContent = section.title === section.page ? section.title : section.page + ": " + section.title;
        line.append(way, marked(excerpt(section, words), words));
        return line;
    };

    const follow = (field, count, list) => {
        const words = wordsOf(field.value);
        const found = words.length ? sectionsWith(words) : [];
        list.replaceChildren(...found.slice(0, most).map(section => lineOf(section, words)));
        count.textContent = !words.length ? "" : !found.length ? "Nothing is found. Try fewer or other words." :
            found.length === 1 ? "1 place" : found.length > most ? `The best ${most} of ${found.length} places` :
            `${found.length} places`;
    };

    const form = document.getElementById("search");
    const field = document.getElementById("wanted");
    const update = () => follow(field, document.getElementById("count"), document.getElementById("found"));
    form.hidden = false;
    // What is looked for is part of the address, so that it is there again for who comes back.
    field.value = new URLSearchParams(location.hash.slice(1)).get("find") || "";
    update();
    field.addEventListener("input", () => {
        history.replaceState(null, "", "#" + (field.value ? new URLSearchParams({find: field.value}) : ""));
        update();
    });
    form.addEventListener("submit", event => {
        event.preventDefault();
        const first = document.querySelector("#found a");
        if (first) first.click();
    });
    // "index.html#wayland" led to a section of this page, and its line of the contents leads on.
    const place = location.hash && document.getElementById(location.hash.slice(1));
    if (place && place.matches("#contents li")) location.replace(place.querySelector("a").href);
})();
