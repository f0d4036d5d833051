// What the voices ask of their worker.
mergeInto(LibraryManager.library, {
  talvoraPart: function (samples, count, rate) {
    return Module.part(HEAP16.slice(samples >> 1, (samples >> 1) + count), rate);
  },
});
