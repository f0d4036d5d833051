// What the core asks of its worker: each call goes to `Module.host`, which the worker gives along. Plain
// functions, since that is what the linker of this WebAssembly can copy.
mergeInto(LibraryManager.library, {
  talvoraWait: function (ms) {
    return Module.host.wait(ms);
  },
  talvoraTake: function (into) {
    return Module.host.take(HEAP32, into >> 2);
  },
  talvoraTell: function (text, length) {
    return Module.host.tell(UTF8ToString(text, length));
  },
  talvoraSpeaks: function () {
    return Module.host.speaks();
  },
  talvoraPlays: function () {
    return Module.host.plays();
  },
  talvoraPackFind: function (name, length) {
    return Module.host.pack.find(UTF8ToString(name, length));
  },
  talvoraPackSize: function (file) {
    return Module.host.pack.size(file);
  },
  talvoraPackRead: function (file, offset, into, size) {
    return Module.host.pack.read(file, offset, HEAPU8.subarray(into, into + size));
  },
  talvoraOwn: function (deed, name, length, number, bytes, size) {
    return Module.host.own[UTF8ToString(deed)](
      UTF8ToString(name, length),
      number,
      HEAPU8.subarray(bytes, bytes + size),
    );
  },
  talvoraOwnList: function (into, room) {
    const text = new TextEncoder().encode(Module.host.own.list().join('\n'));
    HEAPU8.set(text.subarray(0, room), into);
    return text.length;
  },
});
