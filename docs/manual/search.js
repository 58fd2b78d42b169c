// SPDX-License-Identifier: MIT
// The search of the first page, over the sections in search-index.js: of a translation those of its own pages, then those
// of the English pages that it lacks. And the way on for links to places that the first page had when it was the whole
// manual. Without JavaScript there are the contents.
"use strict";

(() => {
    const most = 30;
    const excerptLength = 180;

    // Of the same length as the text, so that what is found in it is at the same place there.
    // Marks on letters do not matter; those of Japanese make others of them.
    const plain = letter => {
        const base = letter.normalize("NFD").charAt(0).toLowerCase();
        return base.length === letter.length ? base : letter;
    };
    const folded = text => text.replace(/[\p{Script=Latin}\p{Script=Cyrillic}\p{Script=Arabic}]/gu, plain)
        .replace(/[‘’]/g, "'").replace(/[“”]/g, '"');

    // "recordings" and "stopped" find what has "record" and "stop" in it.
    const stem = word => {
        const short = word.replace(/(ings?|ed|es|s)$/, "");
        return short.length < 3 ? word : short === word ? word : short.replace(/([^aeiou])\1$/, "$1");
    };

    const small = new Set(("a an and are as at be by can do does for from how i if in is it me my of on or that the this to " +
        "what when where which why will with").split(" "));

    // Without the small words of a question, unless there are no others.
    const wordsOf = text => {
        const all = folded(text).split(/[\s,;:?!"«»„¿¡、。！？「」،؛؟]+/).filter(word => word);
        const telling = all.filter(word => !small.has(word));
        return [...new Set((telling.length ? telling : all).map(stem))];
    };

    // Where words begin with that. Scripts that put no blanks, or write small words into the next one, have it anywhere.
    const placesOf = (text, word) => {
        const places = [];
        for (let place = text.indexOf(word); place >= 0; place = text.indexOf(word, place + word.length))
            if (place === 0 || !/[\p{Script=Latin}\p{Script=Cyrillic}\p{N}]/u.test(text[place - 1])) places.push(place);
        return places;
    };
    const has = (text, word) => placesOf(text, word).length > 0;

    const ready = section => {
        const text = section.text.join("");
        return {
            ...section,
            text,
            heading: folded(section.title),
            chapter: folded(section.page),
            words: folded(section.words || ""),
            body: folded(text),
        };
    };
    const pageOf = section => section.url.split("#")[0];
    const isTranslation = typeof translatedIndex !== "undefined";
    const own = (isTranslation ? translatedIndex : manualIndex).map(ready);
    const ownPages = new Set(own.map(pageOf));
    const english = !isTranslation ? [] : manualIndex.filter(section => !ownPages.has(pageOf(section)))
        .map(section => ready({...section, url: "../" + section.url, isEnglish: true}));

    const weightOf = (section, word) =>
        (has(section.heading, word) ? 12 : 0) + (has(section.words, word) ? 8 : 0) + (has(section.chapter, word) ? 4 : 0) +
        Math.min(placesOf(section.body, word).length, 3);

    // Those that have the most of the words, the weightiest first.
    const sectionsWith = (sections, words) => {
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

    // The end of a word near that place; that place where there are no blanks.
    const cut = (text, place) => {
        const blank = text.lastIndexOf(" ", place);
        return blank > place - 30 ? blank : place;
    };

    const excerpt = (section, words) => {
        const places = words.flatMap(word => placesOf(section.body, word));
        const hit = places.length ? Math.min(...places) : 0;
        const begin = hit < excerptLength / 2 ? 0 : Math.max(cut(section.text, hit - Math.floor(excerptLength / 3)), 0);
        const isWhole = section.text.length <= begin + excerptLength;
        const end = isWhole ? section.text.length : cut(section.text, begin + excerptLength);
        return (begin ? "… " : "") + section.text.slice(begin, end).trim() + (isWhole ? "" : " …");
    };

    const lineOf = (section, words) => {
        const line = document.createElement("li");
        const way = document.createElement("a");
        way.href = section.url;
        way.textContent = section.title === section.page ? section.title : section.page + ": " + section.title;
        line.append(way, marked(excerpt(section, words), words));
        if (section.isEnglish) {
            way.lang = way.hreflang = line.lastChild.lang = "en";
            way.dir = line.lastChild.dir = "ltr";
            way.after(" " + found.dataset.english);
        }
        return line;
    };

    const form = document.getElementById("search");
    const field = document.getElementById("wanted");
    const count = document.getElementById("count");
    const found = document.getElementById("found");

    // In the words of the page.
    const told = places => {
        const words = count.dataset;
        return places === 0 ? words.none : places === 1 ? words.one : places <= most ? words.some.replace("%1", places) :
            words.most.replace("%1", most).replace("%2", places);
    };

    const update = () => {
        const words = wordsOf(field.value);
        const places = words.length ? [...sectionsWith(own, words), ...sectionsWith(english, words)] : [];
        found.replaceChildren(...places.slice(0, most).map(section => lineOf(section, words)));
        count.textContent = words.length ? told(places.length) : "";
    };

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
