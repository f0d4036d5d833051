// The module that emscripten makes of the core.
export default function createTalvora(options: object): Promise<any>;
