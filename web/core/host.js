// What the core asks of its worker: each call goes to `Module.host`, which the worker gives along. Plain
// functions, since that is what the linker of this WebAssembly can copy.
mergeInto(LibraryManager.library, {
  talvoraNow: function () {
    return performance.now();
  },
  talvoraWait: function (ms) {
    return Module.host.wait(ms);
  },
  talvoraTake: function (into) {
    return Module.host.take(HEAP32, into >> 2);
  },
  talvoraTell: function (text, length) {
    return Module.host.tell(UTF8ToString(text, length));
  },
  talvoraSeed: function () {
    return crypto.getRandomValues(new Uint32Array(1))[0];
  },
  talvoraMoment: function (into) {
    const now = new Date();
    HEAP32.set(
      [
        now.getFullYear(),
        now.getMonth() + 1,
        now.getDate(),
        now.getHours(),
        now.getMinutes(),
        now.getSeconds(),
      ],
      into >> 2,
    );
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
  talvoraOwnSize: function (name, length) {
    return Module.host.own.size(UTF8ToString(name, length));
  },
  talvoraOwnCreate: function (name, length) {
    return Module.host.own.create(UTF8ToString(name, length));
  },
  talvoraOwnRead: function (name, length, offset, into, size) {
    return Module.host.own.read(
      UTF8ToString(name, length),
      offset,
      HEAPU8.subarray(into, into + size),
    );
  },
  talvoraOwnWrite: function (name, length, offset, from, size) {
    return Module.host.own.write(
      UTF8ToString(name, length),
      offset,
      HEAPU8.subarray(from, from + size),
    );
  },
  talvoraOwnTruncate: function (name, length, size) {
    return Module.host.own.truncate(UTF8ToString(name, length), size);
  },
  talvoraOwnSync: function (name, length) {
    return Module.host.own.sync(UTF8ToString(name, length));
  },
  talvoraOwnRename: function (from, fromLength, to, toLength) {
    return Module.host.own.rename(UTF8ToString(from, fromLength), UTF8ToString(to, toLength));
  },
  talvoraOwnRemove: function (name, length) {
    return Module.host.own.remove(UTF8ToString(name, length));
  },
  talvoraOwnList: function (into, room) {
    const text = new TextEncoder().encode(Module.host.own.list().join('\n'));
    HEAPU8.set(text.subarray(0, room), into);
    return text.length;
  },
});
