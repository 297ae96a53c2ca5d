// Finds public names and pages by the words that are typed: all of them must occur in a name. Names that
// begin with the text come first, then short ones. names.js holds [name, kind, address].
(() => {
  const box = document.querySelector('#search input');
  const list = document.querySelector('#search ul');

  function matches(text) {
    const words = text.toLowerCase().split(/[\s:.]+/).filter(Boolean);
    if (!words.length) return [];
    const rank = (name) => (name.toLowerCase().split('::').pop().startsWith(words[0]) ? 0 : 1000) + name.length;
    return names.filter(([name]) => words.every((word) => name.toLowerCase().includes(word)))
      .sort((a, b) => rank(a[0]) - rank(b[0])).slice(0, 12);
  }

  function show() {
    const found = matches(box.value);
    list.replaceChildren(...found.map(([name, kind, address]) => {
      const link = document.createElement('a');
      const small = document.createElement('small');
      link.href = box.dataset.root + address;
      link.textContent = name;
      small.textContent = kind;
      link.append(' ', small);
      const item = document.createElement('li');
      item.append(link);
      return item;
    }));
    list.hidden = !found.length;
  }

  box.addEventListener('input', show);
  box.addEventListener('focus', show);
  document.addEventListener('click', (event) => {
    if (!event.target.closest('#search')) list.hidden = true;
  });
  document.addEventListener('keydown', (event) => {
    if (event.key === 'Escape') list.hidden = true;
    if (event.key === 'Enter' && event.target === box && !list.hidden) list.querySelector('a').click();
    if (event.key === '/' && event.target === document.body) {
      event.preventDefault();
      box.focus();
    }
  });
})();
