// The modules that emscripten makes of the core and of the voices.
declare module '*/talvora.js' {
  export default function createTalvora(options: object): Promise<any>;
}
declare module '*/voice.js' {
  export default function createVoice(options: object): Promise<any>;
}
