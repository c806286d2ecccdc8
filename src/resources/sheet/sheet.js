// Part of an XML file: without less-than signs and ampersands.
(function () {
    'use strict';
    const search = document.getElementById('search');
    const field = search.querySelector('input');
    const count = search.querySelector('output');
    const groups = document.querySelectorAll('section');
    const rows = Array.from(document.querySelectorAll('dl div'), function (element) {
        const names = Array.from(element.querySelectorAll('kbd'), function (key) {
            return key.title;
        });
        return {element: element, text: folded(element.textContent + ' ' + names.join(' '))};
    });

    function folded(text) {
        return text.normalize('NFKC').toLowerCase();
    }

    // As in the table of actions, every word has to occur.
    function filter() {
        const words = folded(field.value).split(/\s+/);
        let found = 0;
        for (const row of rows) {
            const matches = words.every(function (word) {
                return row.text.includes(word);
            });
            row.element.hidden = !matches;
            found += matches ? 1 : 0;
        }
        for (const group of groups)
            group.hidden = !group.querySelector('dl div:not([hidden])');
        count.textContent = found + ' / ' + rows.length;
    }

    field.addEventListener('input', filter);
    search.hidden = false;
    filter();
}());
